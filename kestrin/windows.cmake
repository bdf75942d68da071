# What is different about the libraries on Windows.
target_link_libraries(kestrin_static PUBLIC comctl32 user32)
set_target_properties(kestrin_static PROPERTIES OUTPUT_NAME kestrin_static)  # kestrin is the import library

get_target_property(type kestrin TYPE)
if(NOT type STREQUAL SHARED_LIBRARY)
  return()
endif()
target_link_libraries(kestrin PRIVATE comctl32 user32)
set_target_properties(kestrin PROPERTIES PREFIX "")

# What kestrin.dll exports is marked in its objects. In a program that links the static library the marks would export it,
# too. MinGW's archives can lose them; elsewhere the two libraries have objects of their own.
if(MINGW)
  target_compile_definitions(kestrin_objects PRIVATE KESTRIN_BUILDING_SHARED)
  add_custom_command(TARGET kestrin_static POST_BUILD
    COMMAND ${CMAKE_OBJCOPY} --remove-section=.drectve $<TARGET_FILE:kestrin_static>)
else()
  get_target_property(sources kestrin_objects SOURCES)
  add_library(kestrin_exported_objects OBJECT ${sources})
  target_compile_definitions(kestrin_exported_objects PRIVATE KESTRIN_BUILDING_SHARED)
  target_include_directories(kestrin_exported_objects
    SYSTEM PRIVATE $<TARGET_PROPERTY:kestrin_objects,INCLUDE_DIRECTORIES>)
  target_link_libraries(kestrin_exported_objects PRIVATE kestrin_conventions)
  add_dependencies(kestrin_exported_objects kestrin_generated)
  set_property(TARGET kestrin PROPERTY
    SOURCES $<TARGET_OBJECTS:kestrin_exported_objects> $<TARGET_OBJECTS:kestrin_generated>)
endif()

# The compiler's own DLLs, which kestrin.dll and its hosts share: an exception of the library ends in the host.
if(MINGW)
  foreach(name libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll
      OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE "${runtime}")
      continue()  # the compiler was built without this library
    endif()
    set(stripped ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}.dll)
    file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    execute_process(COMMAND ${CMAKE_STRIP} -o ${stripped} ${runtime} COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND runtime_dlls ${stripped})
  endforeach()
  set(KESTRIN_RUNTIME_DLLS ${runtime_dlls} PARENT_SCOPE)
endif()
