! Integrates 4/(1+x**2) over 0..1, which is pi, by Simpson's rule. Build it with:  zex -largeArrayDims simpson.f90

module quadrature
  implicit none
  private
  public :: simpson, quarter_circle
contains

  pure double precision function quarter_circle(x)
    double precision, intent(in) :: x
    quarter_circle = 4 / (1 + x**2)
  end function quarter_circle

  function simpson(f, a, b, pairs) result(integral)
    interface
      pure double precision function f(x)
        double precision, intent(in) :: x
      end function f
    end interface
    double precision, intent(in) :: a, b
    integer, intent(in) :: pairs
    double precision :: integral, h
    integer :: i

    h = (b - a) / (2 * pairs)
    integral = f(a) + f(b)
    do i = 1, 2 * pairs - 1
      integral = integral + merge(4, 2, mod(i, 2) == 1) * f(a + i * h)
    end do
    integral = integral * h / 3
  end function simpson

end module quadrature

! The entry point that a loader calls.
subroutine zexfunction
  use quadrature, only: simpson, quarter_circle
  implicit none

  print '(a, f14.12, a, i0, a)', 'The integral is ', simpson(quarter_circle, 0d0, 1d0, 500), &
      '; default integers have ', bit_size(0), ' bits.'
  flush (6)
end subroutine zexfunction
