# What is installed and packed. Include it last, when all targets are there.
#
#   cmake --install build/release --component bundle   the skeleton of the bundle, below CMAKE_INSTALL_PREFIX: all
#                                                      but INFO and the package, which come with a client
#   cmake --install build/release --component tool     the release engineer's tool
#   cpack --config build/release/CPackConfig.cmake     the tool as .deb and .tar.gz
set(kq_bundle KelvaneQuay.app)
set(kq_templates ${PROJECT_SOURCE_DIR}/tools/quay-package/templates)
set(kq_bundle_build ${CMAKE_CURRENT_BINARY_DIR}/bundle)
set(KQ_INSTALLED_AT "/opt/${kq_bundle}" CACHE STRING "Where the bundle will lie on users' Linux machines")

# A skeleton carries no client: it has the launcher's version, and the build number that means none.
set(KQ_SHORT_VERSION ${PROJECT_VERSION})
set(KQ_BUILD_VERSION 0)
configure_file(${kq_templates}/Info.plist.in ${kq_bundle_build}/Info.plist @ONLY)
configure_file(${kq_templates}/kelvane-quay.desktop.in ${kq_bundle_build}/kelvane-quay.desktop @ONLY)
file(WRITE ${kq_bundle_build}/PkgInfo "APPL????")

set(kq_system_icon ${PROJECT_SOURCE_DIR}/resources/bundle/KelvaneQuay.icns)
set(kq_dialog_icon ${PROJECT_SOURCE_DIR}/resources/images/ico_72_tessaly.png)

if(APPLE)
    # The build itself lays the bundle, with all that lies beside the binary.
    target_sources(kelvane-quay-launcher PRIVATE ${kq_system_icon} ${kq_dialog_icon})
    set_source_files_properties(${kq_system_icon} TARGET_DIRECTORY kelvane-quay-launcher
        PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    set_source_files_properties(${kq_dialog_icon} TARGET_DIRECTORY kelvane-quay-launcher
        PROPERTIES MACOSX_PACKAGE_LOCATION Resources/images)
    set_target_properties(kelvane-quay-launcher PROPERTIES
        MACOSX_BUNDLE TRUE
        MACOSX_BUNDLE_INFO_PLIST ${kq_bundle_build}/Info.plist)
endif()
# The same layout for every platform, whatever the build lays.
install(PROGRAMS $<TARGET_FILE:kelvane-quay-launcher> DESTINATION ${kq_bundle}/Contents/MacOS COMPONENT bundle)
install(FILES ${kq_bundle_build}/Info.plist ${kq_bundle_build}/PkgInfo DESTINATION ${kq_bundle}/Contents
        COMPONENT bundle)
install(FILES ${kq_system_icon} ${kq_bundle_build}/kelvane-quay.desktop DESTINATION ${kq_bundle}/Contents/Resources
        COMPONENT bundle)
install(FILES ${kq_dialog_icon} DESTINATION ${kq_bundle}/Contents/Resources/images COMPONENT bundle)
install(DIRECTORY DESTINATION ${kq_bundle}/Contents/Resources/package COMPONENT bundle)

install(TARGETS quay-package RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
install(FILES ${PROJECT_SOURCE_DIR}/docs/packaging.md ${PROJECT_SOURCE_DIR}/docs/findings.md
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quay-package COMPONENT tool)
install(FILES ${PROJECT_SOURCE_DIR}/tools/quay-package/quay-package.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        COMPONENT tool)

set(CPACK_PACKAGE_NAME quay-package)
set(CPACK_PACKAGE_VENDOR "Kelvane")
set(CPACK_PACKAGE_CONTACT "Kelvane Quay release engineering <release@kelvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Packs Kelvane Quay clients and proves their bundles good")
set(CPACK_PACKAGE_DESCRIPTION
    "Packs a client's folder, lays the bundle that users start, checks both for all that can be wrong with them, \
rehearses the installation with the launcher's own extractor, and explains what a start would do in a home.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_GENERATOR TGZ)
if(NOT APPLE)
    list(APPEND CPACK_GENERATOR DEB)
endif()
set(CPACK_COMPONENTS_ALL tool)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
# The archive has a folder around it all; the Debian package must not.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/cpack-archive.cmake
    "if(CPACK_GENERATOR STREQUAL \"TGZ\")\n    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)\nendif()\n")
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/cpack-archive.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/packages)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
include(CPack)
