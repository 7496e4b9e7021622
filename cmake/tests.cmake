find_package(GTest REQUIRED)
include(GoogleTest)

file(GLOB_RECURSE test_sources CONFIGURE_DEPENDS tests/*.cpp tests/*.h)
list(FILTER test_sources EXCLUDE REGEX "/tests/desktop/")
if(test_sources)
    add_executable(quadrelle_tests ${test_sources})
    target_include_directories(quadrelle_tests PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(quadrelle_tests PRIVATE quadrelle_core PNG::PNG GTest::gmock GTest::gtest_main)
    # The paths reach one file only, so that the others compile alike in every folder.
    set_source_files_properties(tests/support/project_paths.cpp PROPERTIES SKIP_PRECOMPILE_HEADERS ON
        COMPILE_DEFINITIONS "QUADRELLE_SOURCE_DIR=\"${CMAKE_SOURCE_DIR}\";QUADRELLE_PROGRAM=\"$<TARGET_FILE:quadrelle>\"")
    target_precompile_headers(quadrelle_tests PRIVATE <gtest/gtest.h> <algorithm> <array> <functional> <memory> <optional>
        <span> <string> <string_view> <vector>)
    quadrelle_options(quadrelle_tests)
    # A test program compiles faster unoptimised, and what takes time in it is the library.
    target_compile_options(quadrelle_tests PRIVATE $<$<CONFIG:Debug>:-O0> $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
    add_dependencies(quadrelle_tests quadrelle)
    if(TARGET compose_sheet)
        add_dependencies(quadrelle_tests compose_sheet)
    endif()
    gtest_discover_tests(quadrelle_tests
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
        PROPERTIES
            TIMEOUT 60
            ENVIRONMENT SDL_VIDEO_DRIVER=dummy)
endif()

# Whole sessions on an X server of their own with a real pointer; files named common* are parts of the others.
file(GLOB desktop_tests CONFIGURE_DEPENDS tests/desktop/*.sh)
list(FILTER desktop_tests EXCLUDE REGEX "/common[^/]*$")
find_program(XVFB_RUN xvfb-run)
if(desktop_tests AND NOT XVFB_RUN)
    message(WARNING "The desktop tests are left out: there is no xvfb-run")
elseif(desktop_tests AND TARGET quadrelle)
    find_package(X11 REQUIRED)
    add_executable(drop_files tests/desktop/drop_files.cpp)
    target_link_libraries(drop_files PRIVATE X11::X11)
    quadrelle_options(drop_files)
    set(lock odd)
    foreach(script ${desktop_tests})
        get_filename_component(name ${script} NAME_WE)
        # No more than two at once: they look at the window until it is still.
        if(lock STREQUAL odd)
            set(lock even)
        else()
            set(lock odd)
        endif()
        set(display 1280x800x24)
        if(name STREQUAL large_screen)
            set(display 3840x2160x24)
        endif()
        add_test(NAME desktop.${name}
            COMMAND ${XVFB_RUN} -a -s "-screen 0 ${display}" bash ${script}
            WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
        set_tests_properties(desktop.${name} PROPERTIES
            LABELS desktop TIMEOUT 300 RESOURCE_LOCK ${lock}
            COST 100 # they take longest, so they begin first
            ENVIRONMENT "QUADRELLE_PROGRAM=$<TARGET_FILE:quadrelle>;QUADRELLE_SOURCE_DIR=${CMAKE_SOURCE_DIR};\
QUADRELLE_DROP_FILES=$<TARGET_FILE:drop_files>")
    endforeach()
    # They need other builds beside this one, and do not run in each build's own tests of the desktop.
    set_property(TEST desktop.windows APPEND PROPERTY ENVIRONMENT
        "QUADRELLE_WINDOWS_PROGRAM=${CMAKE_SOURCE_DIR}/build/windows/quadrelle.exe")
    set_tests_properties(desktop.windows desktop.windows_archive desktop.archive PROPERTIES
        LABELS packages SKIP_RETURN_CODE 77)
endif()
