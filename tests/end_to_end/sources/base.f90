module base
  integer, parameter :: low = 40
end module
