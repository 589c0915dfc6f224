# Installation and packages: `cmake --install` puts the header, kel_c with a versioned
# SONAME (on Windows the DLL with a version resource), the simulated engine as a component
# of its own, the Python package with its `kel` command, the documentation and the examples
# under a prefix, with a CMake package (find_package(kel_c CONFIG)) and pkg-config modules.
# CPack makes Debian packages on Linux and zips on Windows, one per kind of user:
#
#   runtime      libkel-c0      kel_c and the utility library it needs
#   development  libkel-c-dev   header, CMake package, pkg-config, documentation, examples
#   python       python3-kel    the Python package and the `kel` command
#   sim          kel-c-sim      the simulated engine (kel_cpp), kel_sim.h, kel-sim-server
#
# kel_c needs an engine, libkel_cpp.so, on the loader's path: a vendor's. The simulated one
# goes into a folder of its own (<libdir>/kel_c/sim) where it cannot stand in for a real
# engine unless a program asks for it (kel_c::kel_sim, pkg-config kel_sim, LD_LIBRARY_PATH).
#
# The packages are made from the release preset (scripts/make-packages.sh): stripped, with
# the debug information in -dbgsym packages.

# Debian's own packages put libraries in lib/<multiarch>, also under /usr/local (which its
# loader searches); GNUInstallDirs does so only for the prefix /usr, so the default prefix
# would install to a lib/ the packages do not use.
# A value GNUInstallDirs chose in an older configure is taken as unset; one given by the user
# stays.
get_property(_kel_libdir_help CACHE CMAKE_INSTALL_LIBDIR PROPERTY HELPSTRING)
if(NOT WIN32 AND EXISTS /etc/debian_version AND CMAKE_LIBRARY_ARCHITECTURE
   AND (NOT DEFINED CACHE{CMAKE_INSTALL_LIBDIR} OR _kel_libdir_help STREQUAL "Object code libraries (lib)"))
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Object code libraries (lib/<multiarch> on Debian)"
        FORCE)
endif()
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
# The Python package goes where an interpreter's sysconfig says purelib is for the prefix,
# so that interpreter finds it: the one given as Python3_EXECUTABLE (a venv's or pyenv's:
# <prefix>/lib/python3.X/site-packages), else the system's /usr/bin/python3, the one a
# Debian package serves, else the first found. Debian's own python3 reports its /usr/local
# scheme (posix_local); for it the Debian layout is taken, <prefix>/lib/python3/dist-packages,
# which it searches under /usr. Without an interpreter the Debian layout stays.
if(WIN32)
    set(KEL_PYTHON_INSTALL_DIR python CACHE STRING "Folder (under the prefix) of the Python package kel")
    set(_kel_library_dir ${CMAKE_INSTALL_BINDIR})
else()
    if(NOT DEFINED CACHE{KEL_PYTHON_INSTALL_DIR})
        if(DEFINED CACHE{Python3_EXECUTABLE})
            set(_kel_layout_python ${Python3_EXECUTABLE})
        elseif(EXISTS /usr/bin/python3)
            set(_kel_layout_python /usr/bin/python3)
        else()
            find_package(Python3 COMPONENTS Interpreter)
            set(_kel_layout_python ${Python3_EXECUTABLE})
        endif()
        set(_kel_purelib lib/python3/dist-packages)
        if(_kel_layout_python)
            execute_process(COMMAND ${_kel_layout_python} -c [=[
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
# The simulated engine: beside kel_c on Windows (a program finds DLLs in its own folder or on
# PATH, and the simulator's zip is installed by choice); on Linux in a folder of its own.
if(WIN32)
    set(KEL_SIM_LIBRARY_DIR ${CMAKE_INSTALL_BINDIR})
    set(KEL_SIM_ARCHIVE_DIR ${CMAKE_INSTALL_LIBDIR})
else()
    set(KEL_SIM_LIBRARY_DIR ${CMAKE_INSTALL_LIBDIR}/kel_c/sim)
    set(KEL_SIM_ARCHIVE_DIR ${KEL_SIM_LIBRARY_DIR})
endif()

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
    RUNTIME DESTINATION ${KEL_SIM_LIBRARY_DIR} COMPONENT sim
    LIBRARY DESTINATION ${KEL_SIM_LIBRARY_DIR} COMPONENT sim
    ARCHIVE DESTINATION ${KEL_SIM_ARCHIVE_DIR} COMPONENT sim)
# Installed, the engine finds the utility library in the library folder, and the server
# program finds both; in the build tree all of them lie in bin/ ($ORIGIN).
if(NOT WIN32)
    file(RELATIVE_PATH _kel_lib_from_sim ${_kel_root}/${KEL_SIM_LIBRARY_DIR} ${_kel_root}/${CMAKE_INSTALL_LIBDIR})
    file(RELATIVE_PATH _kel_lib_from_bin ${_kel_root}/${CMAKE_INSTALL_BINDIR} ${_kel_root}/${CMAKE_INSTALL_LIBDIR})
    file(RELATIVE_PATH _kel_sim_from_bin ${_kel_root}/${CMAKE_INSTALL_BINDIR} ${_kel_root}/${KEL_SIM_LIBRARY_DIR})
    set_target_properties(kel_cpp PROPERTIES INSTALL_RPATH "$ORIGIN;$ORIGIN/${_kel_lib_from_sim}")
    set_target_properties(kel-sim-server PROPERTIES
        INSTALL_RPATH "$ORIGIN;$ORIGIN/${_kel_sim_from_bin};$ORIGIN/${_kel_lib_from_bin}")
endif()
install(TARGETS kel-sim-server RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT sim)
install(FILES ${PROJECT_SOURCE_DIR}/include/kel_c.h ${PROJECT_SOURCE_DIR}/include/kel_c_errors.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/reference_engine/include/kel_sim.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    COMPONENT sim)

# The CMake package: kel_c::kel_c, and kel_c::kel_sim when the simulator is installed, with a
# version file. The imported targets are written out rather than exported: an export would
# drag the engine and the utility library (which kel_c links privately) into kel_c::kel_c,
# and the engine is the user's to choose.
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kel_c-config.cmake.in
    ${PROJECT_BINARY_DIR}/packaging/kel_c-config.cmake INSTALL_DESTINATION ${_kel_cmake_dir}
    PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_BINDIR KEL_SIM_LIBRARY_DIR
        KEL_SIM_ARCHIVE_DIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/kel_c-config-version.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/packaging/kel_c-config.cmake ${PROJECT_BINARY_DIR}/packaging/kel_c-config-version.cmake
    DESTINATION ${_kel_cmake_dir} COMPONENT development)
configure_file(${PROJECT_SOURCE_DIR}/cmake/kel_c.pc.in ${PROJECT_BINARY_DIR}/packaging/kel_c.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/kel_c.pc DESTINATION ${_kel_pkgconfig_dir} COMPONENT development)
# The simulator's module comes with the simulator: without it, `pkg-config kel_sim` says so.
configure_file(${PROJECT_SOURCE_DIR}/cmake/kel_sim.pc.in ${PROJECT_BINARY_DIR}/packaging/kel_sim.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/kel_sim.pc DESTINATION ${_kel_pkgconfig_dir} COMPONENT sim)

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
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/interface/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME interface.md
    COMPONENT development)
# The examples with a project that builds them against the installed packages.
file(GLOB _kel_example_files ${PROJECT_SOURCE_DIR}/examples/*.c ${PROJECT_SOURCE_DIR}/examples/CMakeLists.txt)
install(FILES ${_kel_example_files} DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)

# ---- packages -----------------------------------------------------------------------------
set(CPACK_PACKAGE_NAME kel-c)
set(CPACK_PACKAGE_VENDOR "kel_c")
set(CPACK_PACKAGE_CONTACT "kel_c developers <kel_c@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "C interface and Python package for the Kel_cpp vehicle-diagnostics engine")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL runtime development python sim)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_PYTHON_DEPENDS runtime)
set(CPACK_COMPONENT_SIM_DEPENDS runtime)
if(WIN32)
    set(CPACK_STRIP_FILES ON)
    # Two zips: kel_c with everything a user of a real engine needs, and the simulator.
    set(CPACK_GENERATOR ZIP)
    set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
    # Both unpack into the same folder, kel_c-<version>-win64: the simulator joins kel_c there.
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
    set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
    foreach(_kel_component IN ITEMS RUNTIME DEVELOPMENT PYTHON)
        set(CPACK_COMPONENT_${_kel_component}_GROUP kel_c)
    endforeach()
    set(CPACK_COMPONENT_SIM_GROUP sim)
    set(CPACK_PACKAGE_FILE_NAME kel_c-${PROJECT_VERSION}-win64)
    set(CPACK_ARCHIVE_KEL_C_FILE_NAME kel_c-${PROJECT_VERSION}-win64)
    set(CPACK_ARCHIVE_SIM_FILE_NAME kel_c-sim-${PROJECT_VERSION}-win64)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
    # CPack strips the libraries and programs itself, moving their debug information into
    # <package>-dbgsym (by build ID, under /usr/lib/debug, where gdb looks).
    set(CPACK_STRIP_FILES OFF)
    set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
    # Depends from the libraries' own needs. The engine kel_c needs is not ours to name (a
    # vendor's, or the simulator by choice): found in the build tree, it belongs to no
    # package and adds no dependency.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/bin)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libkel-c${PROJECT_VERSION_MAJOR})
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS kel-c-sim)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkel-c-dev)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS kel-c-sim)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-kel)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS python3)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS kel-c-sim)
    set(CPACK_DEBIAN_SIM_PACKAGE_NAME kel-c-sim)
    set(CPACK_DEBIAN_SIM_PACKAGE_SECTION devel)
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "C interface to the Kel_cpp vehicle-diagnostics engine (runtime library)")
    set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "C interface to the Kel_cpp engine: header, CMake and pkg-config files, examples")
    set(CPACK_COMPONENT_PYTHON_DESCRIPTION "Python package and kel command for the Kel_cpp vehicle-diagnostics engine")
    set(CPACK_COMPONENT_SIM_DESCRIPTION "Simulated Kel_cpp engine for tests and examples, in a folder of its own")
endif()
include(CPack)
