# Installation and packages: `cmake --install` puts the header, kel_c with a versioned
# SONAME (on Windows the DLL with a version resource), the reference engine as a component
# of its own, the Python package with its `kel` command and the documentation under a
# prefix, with a CMake package (find_package(kel_c CONFIG)) and kel_c.pc for pkg-config.
# CPack makes a Debian package on Linux and a zip on Windows.
#
# Components: runtime (kel_c and the utility library), development (header, CMake and
# pkg-config files), engine (the simulated vehicle kel_cpp and kel_sim.h), python, doc.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# ---- the library as consumers see it ------------------------------------------------------
set_target_properties(kel_c PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
if(WIN32)
    enable_language(RC)
    # The numbers the version resource wants: major, minor, patch, 0.
    set(KEL_VERSION_COMMAS "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/kel_c.rc.in ${PROJECT_BINARY_DIR}/kel_c.rc @ONLY)
    target_sources(kel_c PRIVATE ${PROJECT_BINARY_DIR}/kel_c.rc)
endif()

# ---- where things go ----------------------------------------------------------------------
# The Python package goes where the interpreter CMake finds (Python3_EXECUTABLE: give a
# venv's or pyenv's python to install for it) says purelib is for the prefix, so that
# interpreter finds it: <prefix>/lib/python3.X/site-packages for a venv, pyenv or
# python.org build. Debian's own python3 reports its /usr/local scheme (posix_local); for
# it the Debian layout is taken, <prefix>/lib/python3/dist-packages, which it searches
# under /usr. Without an interpreter the Debian layout stays.
if(WIN32)
    set(KEL_PYTHON_INSTALL_DIR python CACHE STRING "Folder (under the prefix) of the Python package kel")
    set(_kel_library_dir ${CMAKE_INSTALL_BINDIR})
else()
    if(NOT DEFINED CACHE{KEL_PYTHON_INSTALL_DIR})
        find_package(Python3 COMPONENTS Interpreter)
        set(_kel_purelib lib/python3/dist-packages)
        if(Python3_Interpreter_FOUND)
            execute_process(COMMAND ${Python3_EXECUTABLE} -c [=[
import sysconfig
scheme = sysconfig.get_default_scheme() if hasattr(sysconfig, "get_default_scheme") else sysconfig._get_default_scheme()
if scheme == "posix_local":
    scheme = "deb_system"
print(sysconfig.get_path("purelib", scheme, vars={"base": "/kel-prefix", "platbase": "/kel-prefix"}))]=]
                OUTPUT_VARIABLE _kel_sysconfig OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE _kel_failed)
            if(NOT _kel_failed AND _kel_sysconfig MATCHES "^/kel-prefix/(.+)$")
                set(_kel_purelib ${CMAKE_MATCH_1})
            endif()
        endif()
    endif()
    set(KEL_PYTHON_INSTALL_DIR ${_kel_purelib} CACHE STRING "Folder (under the prefix) of the Python package kel")
    set(_kel_library_dir ${CMAKE_INSTALL_LIBDIR})
endif()
set(_kel_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kel_c)
set(_kel_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# Paths between installed folders, relative, so that an installed tree can be moved (an
# unpacked Debian package, a zip).
set(_kel_root /kel-prefix)
file(RELATIVE_PATH KEL_LIBRARY_FROM_PACKAGE ${_kel_root}/${KEL_PYTHON_INSTALL_DIR}/kel ${_kel_root}/${_kel_library_dir})
file(RELATIVE_PATH KEL_PYTHON_FROM_BIN ${_kel_root}/${CMAKE_INSTALL_BINDIR} ${_kel_root}/${KEL_PYTHON_INSTALL_DIR})
file(RELATIVE_PATH KEL_PREFIX_FROM_PKGCONFIG ${_kel_root}/${_kel_pkgconfig_dir} ${_kel_root})

install(TARGETS kel_c
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(TARGETS vutil
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(TARGETS kel_cpp
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT engine
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT engine
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT engine)
# The simulated vehicle as a server process of its own; installed in bin, it finds the engine
# in the library folder.
if(NOT WIN32)
    file(RELATIVE_PATH _kel_lib_from_bin ${_kel_root}/${CMAKE_INSTALL_BINDIR} ${_kel_root}/${CMAKE_INSTALL_LIBDIR})
    set_target_properties(kel-sim-server PROPERTIES INSTALL_RPATH "$ORIGIN;$ORIGIN/${_kel_lib_from_bin}")
endif()
install(TARGETS kel-sim-server RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT engine)
install(FILES ${PROJECT_SOURCE_DIR}/include/kel_c.h ${PROJECT_SOURCE_DIR}/include/kel_c_errors.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/reference_engine/include/kel_sim.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT engine)

# The CMake package: kel_c::kel_c, with a version file. The imported target is written
# out rather than exported: an export would drag the engine and the utility library (which
# kel_c links privately) into it, and the engine is the user's to choose.
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kel_c-config.cmake.in
    ${PROJECT_BINARY_DIR}/packaging/kel_c-config.cmake INSTALL_DESTINATION ${_kel_cmake_dir}
    PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/kel_c-config-version.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/packaging/kel_c-config.cmake ${PROJECT_BINARY_DIR}/packaging/kel_c-config-version.cmake
    DESTINATION ${_kel_cmake_dir} COMPONENT development)
configure_file(${PROJECT_SOURCE_DIR}/cmake/kel_c.pc.in ${PROJECT_BINARY_DIR}/packaging/kel_c.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/kel_c.pc DESTINATION ${_kel_pkgconfig_dir} COMPONENT development)

# The Python package (without its tests, which need the sources), where it finds the
# library, and the `kel` command.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/kel DESTINATION ${KEL_PYTHON_INSTALL_DIR} COMPONENT python
    PATTERN tests EXCLUDE PATTERN __pycache__ EXCLUDE)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/packaging/_installed.py CONTENT
    "# Written at installation: the folder of the library, relative to this package.\nLIBRARY_DIR = \"@KEL_LIBRARY_FROM_PACKAGE@\"\n"
    @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/_installed.py DESTINATION ${KEL_PYTHON_INSTALL_DIR}/kel COMPONENT python)
if(NOT WIN32)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/kel.in ${PROJECT_BINARY_DIR}/packaging/kel @ONLY)
    install(PROGRAMS ${PROJECT_BINARY_DIR}/packaging/kel DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT python)
endif()

install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/architecture.md
    ${PROJECT_SOURCE_DIR}/docs/operations.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(FILES ${PROJECT_SOURCE_DIR}/interface/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME interface.md
    COMPONENT doc)

# ---- packages -----------------------------------------------------------------------------
set(CPACK_PACKAGE_NAME kel-c)
set(CPACK_PACKAGE_VENDOR "kel_c")
set(CPACK_PACKAGE_CONTACT "kel_c developers <kel_c@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "C interface and Python package for the Kel_cpp vehicle-diagnostics engine")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES OFF)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME kel_c-${PROJECT_VERSION}-win64)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION libs)
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libstdc++6")
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "python3")
endif()
include(CPack)
