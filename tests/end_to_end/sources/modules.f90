subroutine zexfunction(answer)
  use base
  integer(8) :: answer
  answer = low + 4
end subroutine
