# Tests on Windows, or under Wine. Those that need Wine run one after the other, on a display that nobody sees.
set(KESTRIN_NATIVE_TOOL ${PROJECT_SOURCE_DIR}/build/release/bin/kestrin CACHE FILEPATH
  "The tool as built for this machine; what the one for Windows prints is compared with what it prints")
set(here ${CMAKE_CURRENT_LIST_DIR})
set(headless ${here}/headless.sh ${PROJECT_BINARY_DIR}/wine)
set(wine ${CMAKE_CROSSCOMPILING_EMULATOR})

# Most of the time it takes to compile a test goes into the headers.
target_sources(kestrin_tests PRIVATE
  faults/host_test.cpp
  faults/threads_test.cpp
  windows/native_windows_test.cpp)
target_precompile_headers(kestrin_tests PRIVATE <gtest/gtest.h> "${PROJECT_SOURCE_DIR}/kestrin/kestrin.h")
target_compile_options(kestrin_tests PRIVATE -O0)
target_link_options(kestrin_tests PRIVATE -static)
# A queue of the system holds fewer messages than the storm has, and a box of the system waits for its user.
add_test(NAME Windows.Library
  COMMAND ${headless} ${wine} $<TARGET_FILE:kestrin_tests> --gtest_brief=1 --gtest_filter=-UnrulyHost.AStorm*:MessageBox*)

add_test(NAME Windows.ToolPrintsTheSameBytes
  COMMAND ${headless} ${here}/tool_test.sh $<TARGET_FILE:kestrin_tool> ${KESTRIN_NATIVE_TOOL}
          ${PROJECT_SOURCE_DIR}/examples/board ${wine})

# Hosts of kestrin.dll. One includes windows.h before the library's headers, one after them.
set(header_of_windows windows.h)
set(header_of_kestrin kestrin/kestrin.h)
foreach(first windows kestrin)
  add_executable(kestrin_${first}_first windows/header_order.cpp)
  target_compile_options(kestrin_${first}_first PRIVATE "SHELL:-include ${header_of_${first}}")
  target_compile_options(kestrin_${first}_first PRIVATE -Wall -Wextra -Wconversion -Werror)
  target_link_libraries(kestrin_${first}_first PRIVATE kestrin)
  add_test(NAME Windows.HeadersInAnyOrder.${first}First COMMAND ${headless} ${wine} $<TARGET_FILE:kestrin_${first}_first>)
endforeach()

# The example, driven by its test.
add_subdirectory(${PROJECT_SOURCE_DIR}/examples/windows_dialog ${PROJECT_BINARY_DIR}/examples/windows_dialog)
add_executable(kestrin_dialog_test windows/dialog_test.cpp ${PROJECT_SOURCE_DIR}/examples/windows_dialog/dialog.rc)
target_link_libraries(kestrin_dialog_test PRIVATE import_dialog gdi32 GTest::gtest_main)
add_test(NAME Windows.DialogMovesAndCanBeCancelled
  COMMAND ${headless} ${wine} $<TARGET_FILE:kestrin_dialog_test> ${PROJECT_SOURCE_DIR}/examples/board/board
          ${PROJECT_BINARY_DIR}/dialog.bmp)

# Hosts of the ZIP. Building them needs no Wine, so that other tests can run meanwhile.
set(zip ${PROJECT_BINARY_DIR}/zip_test)
add_test(NAME Windows.HostsBuildWithTheZip
  COMMAND ${here}/zip_test.sh ${PROJECT_BINARY_DIR} ${zip} ${CMAKE_CXX_COMPILER} ${CMAKE_RC_COMPILER})
foreach(host host static_host)
  add_test(NAME Windows.HostsOfTheZipRun.${host}
    COMMAND ${headless} ${PROJECT_SOURCE_DIR}/tests/install/run_host.sh ${wine} ${zip}/prefix/bin/${host}.exe)
  set_tests_properties(Windows.HostsOfTheZipRun.${host} PROPERTIES FIXTURES_REQUIRED zip)
endforeach()

get_property(tests DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} PROPERTY TESTS)
set_tests_properties(${tests} PROPERTIES TIMEOUT 300 RESOURCE_LOCK wine)
set_tests_properties(Windows.HostsBuildWithTheZip PROPERTIES FIXTURES_SETUP zip RESOURCE_LOCK "")
