! What an extension in Fortran is written against. Include it ahead of your own program units, in free form, then use
! the module "zex":
!
!     include 'zex_fortran.f90'
!
!     subroutine zexfunction(nlhs, plhs, nrhs, prhs)
!       use zex
!       implicit none
!       integer(zx_index), intent(in) :: nlhs, nrhs
!       type(zx_array), intent(inout) :: plhs(*)
!       type(zx_array), intent(in) :: prhs(nrhs)
!       real(zx_double), pointer :: x(:), y(:)
!
!       if (nrhs /= 1) call zex_fail('halve:inputs', 'halve needs one matrix.')
!       call c_f_pointer(zx_read_reals(prhs(1)), x, [zx_count_of(prhs(1))])
!       plhs(1) = zx_make(ZX_REAL, zx_rows_of(prhs(1)), zx_columns_of(prhs(1)))
!       call c_f_pointer(zx_edit_reals(plhs(1)), y, [zx_count_of(prhs(1))])
!       y = x / 2
!     end subroutine zexfunction
!
! Sizes and counts are integer(zx_index), whatever default integers are. The functions are those of zex.h, which tells
! what an array is and who owns what. Inputs are read-only, also behind a pointer. A matrix comes as one by
! c_f_pointer(zx_read_reals(a), m, [zx_rows_of(a), zx_columns_of(a)]). zex_fail ends the call and does not come back.
!
! None of this depends on the release or on the width of array sizes: complex elements are complex(zx_double_complex)
! and sizes have 64 bits under every switch. Fortran objects therefore agree with all others and carry no record. But
! C and C++ objects take complex elements as parts unless compiled with -R2018a: beside such, asking for the elements
! rearranges them, and pointers that the other language took before are invalid. Take them anew after each change.
module zex
  use, intrinsic :: iso_c_binding, only: zx_array => c_ptr, zx_index => c_int64_t, zx_double => c_double, &
      zx_double_complex => c_double_complex, zx_kind => c_int, c_f_pointer, c_associated, c_null_ptr, c_char, &
      c_int8_t, c_int16_t, c_int32_t, c_int64_t
  implicit none
  public

  ! Kinds of arrays.
  integer(zx_kind), parameter :: ZX_REAL = 1, ZX_COMPLEX = 2, ZX_INT8 = 3, ZX_INT16 = 4, ZX_INT32 = 5, &
      ZX_INT64 = 6, ZX_UINT8 = 7, ZX_UINT16 = 8, ZX_UINT32 = 9, ZX_UINT64 = 10, ZX_LOGICAL = 11, ZX_TEXT = 12, &
      ZX_OTHER = 13

  interface
    ! Making and ending arrays.
    type(zx_array) function zx_make(kind, rows, columns) bind(c, name='zxMake')
      import
      integer(zx_kind), value :: kind
      integer(zx_index), value :: rows, columns
    end function zx_make

    type(zx_array) function zx_make_real(number) bind(c, name='zxMakeReal')
      import
      real(zx_double), value :: number
    end function zx_make_real

    ! Blanks at the end are dropped.
    type(zx_array) function zx_make_text(text)
      import
      character(len=*), intent(in) :: text
    end function zx_make_text

    type(zx_array) function zx_copy(array) bind(c, name='zxCopy')
      import
      type(zx_array), value :: array
    end function zx_copy

    subroutine zx_destroy_array(array) bind(c, name='zxDestroyArray')
      import
      type(zx_array), value :: array
    end subroutine zx_destroy_array

    ! Asking.
    integer(zx_kind) function zx_kind_of(array) bind(c, name='zxKindOf')
      import
      type(zx_array), value :: array
    end function zx_kind_of

    integer(zx_index) function zx_rows_of(array) bind(c, name='zxRowsOf')
      import
      type(zx_array), value :: array
    end function zx_rows_of

    integer(zx_index) function zx_columns_of(array) bind(c, name='zxColumnsOf')
      import
      type(zx_array), value :: array
    end function zx_columns_of

    integer(zx_index) function zx_count_of(array) bind(c, name='zxCountOf')
      import
      type(zx_array), value :: array
    end function zx_count_of

    real(zx_double) function zx_number(array) bind(c, name='zxNumber')
      import
      type(zx_array), value :: array
    end function zx_number

    ! Elements, for c_f_pointer: "read" for any array, "edit" for those that the extension made.
    type(zx_array) function zx_read_reals(array) bind(c, name='zxReadReals')
      import
      type(zx_array), value :: array
    end function zx_read_reals

    type(zx_array) function zx_edit_reals(array) bind(c, name='zxEditReals')
      import
      type(zx_array), value :: array
    end function zx_edit_reals

    type(zx_array) function zx_read_complexes(array) bind(c, name='zxReadComplexes')
      import
      type(zx_array), value :: array
    end function zx_read_complexes

    type(zx_array) function zx_edit_complexes(array) bind(c, name='zxEditComplexes')
      import
      type(zx_array), value :: array
    end function zx_edit_complexes

    ! Integers and logicals; a logical element is an integer(c_int8_t), 0 or 1.
    type(zx_array) function zx_read_data(array, kind) bind(c, name='zxReadData')
      import
      type(zx_array), value :: array
      integer(zx_kind), value :: kind
    end function zx_read_data

    type(zx_array) function zx_edit_data(array, kind) bind(c, name='zxEditData')
      import
      type(zx_array), value :: array
      integer(zx_kind), value :: kind
    end function zx_edit_data

    ! UTF-8 characters, ended by a 0.
    type(zx_array) function zx_read_text(array) bind(c, name='zxReadText')
      import
      type(zx_array), value :: array
    end function zx_read_text

    ! Talking to the user. Blanks at the end are dropped.
    subroutine zex_print(line)
      character(len=*), intent(in) :: line
    end subroutine zex_print

    subroutine zex_fail(identifier, message)
      character(len=*), intent(in) :: identifier, message
    end subroutine zex_fail
  end interface
end module zex
