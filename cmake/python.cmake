# The Python package's wheel, its tests, its type check, and the checks of the installed
# tree and the packages. The Python tests load kel_c into a plain interpreter, so they run
# in the native builds without sanitizers; the zip check belongs to the Windows build.

# The interpreter whose setuptools builds the wheel and whose venv the installation test
# makes: Debian's python3 where there is one (setuptools and wheel from Debian, offline).
find_program(KEL_PACKAGING_PYTHON NAMES python3 PATHS /usr/bin NO_DEFAULT_PATH)
if(NOT KEL_PACKAGING_PYTHON)
    set(KEL_PACKAGING_PYTHON ${Python3_EXECUTABLE})
endif()

# `cmake --build --preset linux --target python_wheel`: the wheel of the package with this
# build's kel_c and simulated engine inside, in <build>/wheel.
if(NOT WIN32 AND NOT CMAKE_CROSSCOMPILING AND KEL_PACKAGING_PYTHON)
    add_custom_target(python_wheel
        COMMAND ${CMAKE_COMMAND} -E env KEL_C_BUILD_DIR=$<TARGET_FILE_DIR:kel_c>
            ${KEL_PACKAGING_PYTHON} -m pip wheel --no-index --no-build-isolation --no-deps
                --find-links /usr/share/python-wheels -w ${PROJECT_BINARY_DIR}/wheel ${PROJECT_SOURCE_DIR}
        DEPENDS kel_c kel_cpp
        COMMENT "The Python wheel in ${PROJECT_BINARY_DIR}/wheel"
        VERBATIM)
endif()

if(NOT KEL_BUILD_TESTS OR NOT Python3_Interpreter_FOUND)
    return()
endif()

if(NOT CMAKE_CROSSCOMPILING AND KEL_SANITIZER STREQUAL "")
    add_test(NAME python COMMAND ${Python3_EXECUTABLE} -m unittest discover -s kel/tests -t .
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(python PROPERTIES LABELS python TIMEOUT 300
        ENVIRONMENT "KEL_C_LIBRARY=$<TARGET_FILE:kel_c>;KEL_SIM_SERVER=$<TARGET_FILE:kel-sim-server>;PYTHONDONTWRITEBYTECODE=1")

    # mypy --strict, with whichever interpreter has it (Debian's python3-mypy serves
    # /usr/bin/python3, which may not be the first python3 on PATH).
    foreach(_kel_python IN ITEMS ${Python3_EXECUTABLE} /usr/bin/python3)
        execute_process(COMMAND ${_kel_python} -m mypy --version RESULT_VARIABLE _kel_no_mypy OUTPUT_QUIET ERROR_QUIET)
        if(_kel_no_mypy EQUAL 0)
            add_test(NAME python_types
                COMMAND ${_kel_python} -m mypy --strict --cache-dir ${PROJECT_BINARY_DIR}/mypy_cache
                    --exclude kel/tests/ kel
                WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
            set_tests_properties(python_types PROPERTIES LABELS static TIMEOUT 300)
            break()
        endif()
    endforeach()
    if(NOT TEST python_types)
        message(STATUS "mypy not found (Debian: python3-mypy): the Python package is not type-checked")
    endif()

    # pip install of the checkout into a fresh venv, offline, and the installed `kel` and
    # package against the library the package carries (kel/tests/test_install.py).
    add_test(NAME python_install COMMAND ${Python3_EXECUTABLE} -m kel.tests.test_install
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(python_install PROPERTIES LABELS "python;install" TIMEOUT 600 RUN_SERIAL ON
        SKIP_RETURN_CODE 77
        ENVIRONMENT "KEL_INSTALL_TEST=${KEL_PACKAGING_PYTHON};KEL_C_LIBRARY=$<TARGET_FILE:kel_c>;PYTHONDONTWRITEBYTECODE=1")

    # Installs this build and builds the installed examples against it through find_package
    # and pkg-config, runs the installed `kel`, then does the same from the Debian packages
    # unpacked with dpkg-deb, first without the simulator, then with it.
    add_test(NAME install_consumers
        COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/consumer/check_install.py
            --build ${PROJECT_BINARY_DIR})
    set_tests_properties(install_consumers PROPERTIES LABELS install TIMEOUT 600 RUN_SERIAL ON)
endif()

if(WIN32)
    # The zip holds everything a Windows user needs: every DLL in it imports only system DLLs
    # and DLLs of the zip.
    add_test(NAME package_zip
        COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/consumer/check_zip.py
            --build ${PROJECT_BINARY_DIR} --objdump ${CMAKE_OBJDUMP})
    set_tests_properties(package_zip PROPERTIES LABELS install TIMEOUT 600 RUN_SERIAL ON)
endif()
