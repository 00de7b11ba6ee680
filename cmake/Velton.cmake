# What every room shares: strictness, sanitizers, precompiled headers, and the two commands that add a room and its tests.

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} ${CCACHE})
endif()

add_library(velton_strict INTERFACE)
target_include_directories(velton_strict INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(velton_strict INTERFACE -Wall -Wextra -Wconversion
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${CCACHE}>>:-fpch-preprocess>
    $<$<BOOL:${VELTON_WERROR}>:-Werror>)
target_compile_definitions(velton_strict INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS
    VELTON_VERSION="${PROJECT_VERSION}")
if(VELTON_SANITIZE)
    target_compile_options(velton_strict INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer)
    target_link_options(velton_strict INTERFACE -fsanitize=address,undefined)
endif()

# velton_room(NAME LINK targets... [WIDGETS]): one library a folder; its link line is its arrows.
function(velton_room name)
    cmake_parse_arguments(ROOM "WIDGETS" "" "LINK;SOURCES" ${ARGN})
    add_library(velton_${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(velton_${name} PUBLIC velton_strict ${ROOM_LINK})
    if(ROOM_WIDGETS)
        # Not by automatic uic: other rooms include these headers through the screens', so the build must know them.
        file(GLOB forms CONFIGURE_DEPENDS *.ui)
        qt_wrap_ui(form_headers ${forms})
        target_sources(velton_${name} PRIVATE ${form_headers})
        target_include_directories(velton_${name} PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
        target_precompile_headers(velton_${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/PchWidgets.h)
    else()
        target_precompile_headers(velton_${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/PchCore.h)
    endif()
    set_target_properties(velton_${name} PROPERTIES AUTOMOC ON)
endfunction()

# What every test runs under.
set(VELTON_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=en_US.UTF-8;\
LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/leaks.txt:print_suppressions=0")

# velton_test(NAME LINK targets... SOURCES files...): one test program a room, run off-screen.
function(velton_test name)
    cmake_parse_arguments(TEST "" "" "LINK;SOURCES;ENVIRONMENT" ${ARGN})
    add_executable(test_${name} ${TEST_SOURCES})
    target_link_libraries(test_${name} PRIVATE velton_strict ${TEST_LINK} GTest::gmock)
    target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(test_${name} PRIVATE TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data" SOURCE_ROOT="${CMAKE_SOURCE_DIR}"
        PROGRAMS="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600
        ENVIRONMENT "${VELTON_TEST_ENVIRONMENT};${TEST_ENVIRONMENT}")
endfunction()
