subroutine zexfunction(answer)
  use raised
  integer(8) :: answer
  answer = high
end subroutine
