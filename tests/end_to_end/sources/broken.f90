subroutine zexfunction
  x = = 1
end
