! Steps of the method of conjugate gradients towards the x of A x = b, for a symmetric positive definite A. The vector
! work is done by the BLAS of the system (Debian: apt install libblas-dev).
!
!     zex -largeArrayDims conjugate.f90 -lblas
!     zexrun conjugate.zexa64 "[4 1; 1 3]" "[1; 2]" 2 -nlhs 2
!
! The third input is the number of steps. The outputs are x and the length of the residual b - A x.

include 'zex_fortran.f90'

module conjugate_gradients
  use, intrinsic :: iso_c_binding, only: c_double, c_int32_t
  implicit none
  private
  public :: solve

  ! Default integers may have 64 bits here; those of the system's BLAS have 32.
  integer, parameter :: blas_int = c_int32_t
  integer(blas_int), parameter :: one = 1

  interface
    real(c_double) function ddot(n, x, incx, y, incy)
      import
      integer(blas_int), intent(in) :: n, incx, incy
      real(c_double), intent(in) :: x(*), y(*)
    end function ddot

    subroutine daxpy(n, alpha, x, incx, y, incy)
      import
      integer(blas_int), intent(in) :: n, incx, incy
      real(c_double), intent(in) :: alpha, x(*)
      real(c_double), intent(inout) :: y(*)
    end subroutine daxpy

    subroutine dsymv(uplo, n, alpha, a, lda, x, incx, beta, y, incy)
      import
      character, intent(in) :: uplo
      integer(blas_int), intent(in) :: n, lda, incx, incy
      real(c_double), intent(in) :: alpha, a(lda, *), x(*), beta
      real(c_double), intent(inout) :: y(*)
    end subroutine dsymv
  end interface

contains

  subroutine solve(a, b, steps, x, residual_length)
    real(c_double), intent(in) :: a(:, :), b(:)
    integer, intent(in) :: steps
    real(c_double), intent(out) :: x(:), residual_length
    real(c_double) :: residual(size(b)), direction(size(b)), image(size(b)), square, former, length
    integer(blas_int) :: n
    integer :: step

    n = int(size(b), blas_int)
    x = 0
    residual = b
    direction = b
    square = ddot(n, residual, one, residual, one)
    do step = 1, steps
      if (square <= 0) exit
      call dsymv('U', n, 1d0, a, n, direction, one, 0d0, image, one)
      length = square / ddot(n, direction, one, image, one)
      call daxpy(n, length, direction, one, x, one)
      call daxpy(n, -length, image, one, residual, one)
      former = square
      square = ddot(n, residual, one, residual, one)
      direction = residual + (square / former) * direction
    end do
    residual_length = sqrt(square)
  end subroutine solve

end module conjugate_gradients

subroutine zexfunction(nlhs, plhs, nrhs, prhs)
  use zex
  use conjugate_gradients, only: solve
  implicit none
  integer(zx_index), intent(in) :: nlhs, nrhs
  type(zx_array), intent(inout) :: plhs(*)
  type(zx_array), intent(in) :: prhs(nrhs)
  real(zx_double), pointer :: a(:, :), b(:), x(:)
  real(zx_double) :: residual_length
  integer(zx_index) :: n

  if (nrhs /= 3 .or. nlhs > 2) call zex_fail('conjugate:arguments', 'Use: [x, r] = conjugate(A, b, steps).')
  n = zx_rows_of(prhs(1))
  if (zx_columns_of(prhs(1)) /= n .or. zx_count_of(prhs(2)) /= n) &
      call zex_fail('conjugate:sizes', 'A must be square, and b as long as A has rows.')
  if (n == 0 .or. n > huge(0_c_int32_t)) call zex_fail('conjugate:sizes', 'A has no rows, or too many for the BLAS.')

  call c_f_pointer(zx_read_reals(prhs(1)), a, [n, n])
  call c_f_pointer(zx_read_reals(prhs(2)), b, [n])
  plhs(1) = zx_make(ZX_REAL, n, 1_zx_index)
  call c_f_pointer(zx_edit_reals(plhs(1)), x, [n])
  call solve(a, b, int(zx_number(prhs(3))), x, residual_length)
  if (nlhs == 2) plhs(2) = zx_make_real(residual_length)
end subroutine zexfunction
