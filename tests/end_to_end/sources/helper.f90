function helper() bind(c)
  integer(8) :: helper
  character(4) :: text = '1234'
  read (text, *) helper
end function
