# What `cmake --install` installs, and the packages that cpack makes of it.
include(CMakePackageConfigHelpers)

install(TARGETS ${KESTRIN_LIBRARIES}
  EXPORT kestrinTargets
  RUNTIME COMPONENT runtime
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  FILE_SET HEADERS COMPONENT development
  FILE_SET generated COMPONENT development)
install(FILES ${KESTRIN_RUNTIME_DLLS} TYPE BIN COMPONENT runtime)  # of the compiler, on Windows
install(EXPORT kestrinTargets
  NAMESPACE kestrin::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kestrin
  COMPONENT development)

configure_package_config_file(cmake/kestrinConfig.cmake.in ${PROJECT_BINARY_DIR}/kestrinConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kestrin)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kestrinConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kestrinConfig.cmake ${PROJECT_BINARY_DIR}/kestrinConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kestrin
  COMPONENT development)

# The pkg-config files compute the prefix from their own location, so the installation can be moved.
file(RELATIVE_PATH KESTRIN_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
function(kestrin_pkg_config name definitions link)
  configure_file(cmake/kestrin.pc.in ${PROJECT_BINARY_DIR}/${name}.pc.in @ONLY)
  file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/${name}.pc INPUT ${PROJECT_BINARY_DIR}/${name}.pc.in)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
endfunction()
set(static "\${libdir}/$<TARGET_FILE_NAME:kestrin_static>$<$<PLATFORM_ID:Windows>: -lcomctl32 -luser32>")
if(kestrin IN_LIST KESTRIN_LIBRARIES)
  kestrin_pkg_config(kestrin -DKESTRIN_USING_SHARED "-L\${libdir} -lkestrin")
else()
  kestrin_pkg_config(kestrin "" "${static}")
endif()
if(kestrin_static IN_LIST KESTRIN_LIBRARIES)
  kestrin_pkg_config(kestrin-static "" "${static}")
endif()

if(KESTRIN_BUILD_TOOL)
  install(TARGETS kestrin_tool COMPONENT tool)
endif()
if(KESTRIN_BUILD_TOOL AND NOT WIN32)
  install(FILES packaging/kestrin.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES packaging/kestrin.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME kestrin
    COMPONENT tool)
endif()

if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR DEB)
endif()
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_CONTACT "kestrin maintainers <maintainers@example.org>")
set(CPACK_PACKAGE_VENDOR kestrin)
include(packaging/debian/packages.cmake)
include(CPack)
