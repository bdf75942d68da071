# Finds the headers of CLI11, which Debian installs beside those of its own C library. The cross-compiler must see
# only them.
include(${CMAKE_CURRENT_LIST_DIR}/link_headers.cmake)
link_headers(CLI11 CLI)
if(CLI11_FOUND AND NOT TARGET CLI11::CLI11)
  add_library(CLI11::CLI11 INTERFACE IMPORTED)
  target_include_directories(CLI11::CLI11 INTERFACE ${linked_headers})
endif()
