# The generated parser allocates its stack in a constructor that it declares noexcept, so running out of memory there
# would end the host's process. Removes the noexcept; fails when the generator's skeleton no longer has that line.
set(declared "stack (size_type n = 200) YY_NOEXCEPT")
set(wanted "stack (size_type n = 200)")
file(READ ${HEADER} text)
string(FIND "${text}" "${declared}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "${HEADER}: no \"${declared}\"; see cmake/let_parser_stack_throw.cmake")
endif()
string(REPLACE "${declared}" "${wanted}" text "${text}")
file(WRITE ${HEADER} "${text}")
