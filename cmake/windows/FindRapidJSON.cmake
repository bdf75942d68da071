# Finds the headers of RapidJSON, which Debian installs beside those of its own C library. The cross-compiler must see
# only them.
include(${CMAKE_CURRENT_LIST_DIR}/link_headers.cmake)
link_headers(RapidJSON rapidjson)
set(RapidJSON_INCLUDE_DIRS ${linked_headers})
