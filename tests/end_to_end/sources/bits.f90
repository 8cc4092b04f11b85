subroutine zexfunction(answer)
  integer(8) :: answer
  answer = bit_size(0)
end subroutine
