module raised
  use base
  integer, parameter :: high = low + 4
end module
