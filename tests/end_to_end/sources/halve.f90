include 'zex_fortran.f90'
subroutine zexfunction(nlhs, plhs, nrhs, prhs)
  use zex
  implicit none
  integer(zx_index), intent(in) :: nlhs, nrhs
  type(zx_array), intent(inout) :: plhs(*)
  type(zx_array), intent(in) :: prhs(nrhs)
  if (nrhs /= 1) call zex_fail('halve:inputs', 'é')
  call zex_print('halving')
  plhs(1) = zx_make_real(zx_number(prhs(1)) / 2)
end subroutine
