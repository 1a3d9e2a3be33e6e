# What a host gets: bin (DLLs, the toolchain's runtime DLLs, the gallery), lib (import libraries), include, the CMake
# package, and share/doc (the guide, and the pages that headers name).

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ORVFC)
set(targets ORVFC orvmathfunc orvafx)
if(ORVFC_FOUNDATION STREQUAL "system")
  set(targets ORVFC orvmathfunc)
endif()

install(TARGETS ${targets} EXPORT ORVFCTargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT ORVFCTargets NAMESPACE ORVFC:: DESTINATION ${package_dir})
if(TARGET gallery)
  install(TARGETS gallery RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
if(ORV_RUNTIME_DLLS)
  install(FILES ${ORV_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

include(OrvPublicHeaders)
set(headers ${ORV_PUBLIC_HEADERS})
if(ORVFC_FOUNDATION STREQUAL "own")
  list(APPEND headers ${ORV_FOUNDATION_HEADERS})
endif()
foreach(header IN LISTS headers)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()

install(FILES ${PROJECT_SOURCE_DIR}/docs/guide.md ${PROJECT_SOURCE_DIR}/docs/foundation.md
              ${PROJECT_SOURCE_DIR}/docs/line-type-file.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ORVFCConfig.cmake.in
                              ${CMAKE_CURRENT_BINARY_DIR}/ORVFCConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ORVFCConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ORVFCConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/ORVFCConfigVersion.cmake
        DESTINATION ${package_dir})

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME ORVFC)
set(CPACK_PACKAGE_FILE_NAME ORVFC-${PROJECT_VERSION}-mingw64)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
