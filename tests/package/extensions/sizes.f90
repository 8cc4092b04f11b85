! The bits of a default integer.
include 'zex_fortran.f90'

subroutine zexfunction(nlhs, plhs, nrhs, prhs)
  use zex
  implicit none
  integer(zx_index), intent(in) :: nlhs, nrhs
  type(zx_array), intent(inout) :: plhs(*)
  type(zx_array), intent(in) :: prhs(nrhs)
  integer, parameter :: default = 0

  if (nlhs <= 1) plhs(1) = zx_make_real(real(bit_size(default), zx_double))
end subroutine zexfunction
