# Removes a noexcept from the generated parser: its stack's constructor is declared noexcept although it allocates, so
# running out of memory there would terminate the host. Fails if the line has changed in a new version of bison.
set(declared "stack (size_type n = 200) YY_NOEXCEPT")
set(wanted "stack (size_type n = 200)")
file(READ ${HEADER} text)
string(FIND "${text}" "${declared}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "\"${declared}\" not found in ${HEADER}; adapt cmake/let_parser_stack_throw.cmake to this bison")
endif()
string(REPLACE "${declared}" "${wanted}" text "${text}")
file(WRITE ${HEADER} "${text}")
