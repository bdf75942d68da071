# The Debian packages: one for each component of the installation.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/finish.cmake)
set(CPACK_KESTRIN_LIBRARY_FOLDER ${CMAKE_INSTALL_LIBDIR})
set(CPACK_KESTRIN_ARCHITECTURE ${CMAKE_LIBRARY_ARCHITECTURE})

# Makes a package of a component. The first line of its description is the synopsis.
macro(kestrin_debian_package component name section description)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION "${section}")
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${description}")
endmacro()

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(about "kestrin reads a printed-circuit board that another CAD system exported as
four text files (Tech, Neutral, Geometry and Traces), and reports every line
that it skips.")
set(same_multi_arch "\nMulti-Arch: same")  # CPack has no variable for this line, so it follows the section

if(kestrin IN_LIST KESTRIN_LIBRARIES)
  set(shared libkestrin${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  kestrin_debian_package(runtime ${shared} libs${same_multi_arch}
"importer of exported printed-circuit boards - shared library
${about}

This package contains the library that programs need to run.")
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/triggers)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
      "${shared} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
endif()

kestrin_debian_package(development libkestrin-dev libdevel${same_multi_arch}
"importer of exported printed-circuit boards - development files
${about}

This package contains the headers, the static library, and the files for CMake
and pkg-config.")

if(KESTRIN_BUILD_TOOL)
  kestrin_debian_package(tool kestrin electronics
"importer of exported printed-circuit boards - command-line tool
${about}

This package contains the tool kestrin, which summarizes, checks, compares and
draws boards, and prints them as JSON.")
endif()

if(TARGET kestrin_python)
  kestrin_debian_package(python python3-kestrin python
"importer of exported printed-circuit boards - Python module
${about}

This package contains the module kestrin: boards as objects, numpy arrays and
tables of pandas, also of many boards on Dask.")
  math(EXPR next_minor "${KESTRIN_PYTHON_MINOR} + 1")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS 
      "python3 (>= 3.${KESTRIN_PYTHON_MINOR}~), python3 (<< 3.${next_minor}), python3-numpy")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS python3-pandas)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS python3-distributed)
endif()
