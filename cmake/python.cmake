# The Python package's tests, its type check, and the checks of the installed tree and the
# packages. The Python tests load kel_c into a plain interpreter, so they run in the
# native builds without sanitizers; the zip check belongs to the Windows build.
if(NOT KEL_BUILD_TESTS OR NOT Python3_Interpreter_FOUND)
    return()
endif()

if(NOT CMAKE_CROSSCOMPILING AND KEL_SANITIZER STREQUAL "")
    add_test(NAME python COMMAND ${Python3_EXECUTABLE} -m unittest discover -s kel/tests -t .
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(python PROPERTIES LABELS python TIMEOUT 300
        ENVIRONMENT "KEL_C_LIBRARY=$<TARGET_FILE:kel_c>;PYTHONDONTWRITEBYTECODE=1")

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

    # Installs this build, builds the consumer project against it through find_package and
    # through pkg-config, runs the installed `kel`, then does the same from the Debian
    # package unpacked with dpkg-deb.
    add_test(NAME install_consumers
        COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/consumer/check_install.py
            --build ${PROJECT_BINARY_DIR} --source ${PROJECT_SOURCE_DIR}/tests/consumer)
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
