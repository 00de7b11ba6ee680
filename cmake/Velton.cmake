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
# A program needs no library of a room's parts that it leaves out.
target_link_options(velton_strict INTERFACE LINKER:--as-needed)
target_compile_definitions(velton_strict INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS
    VELTON_VERSION="${PROJECT_VERSION}")
# As the distribution builds its packages.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
    target_compile_options(velton_strict INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
        -Wformat -Werror=format-security)
    target_link_options(velton_strict INTERFACE LINKER:-z,relro,-z,now)
endif()
if(VELTON_SANITIZE)
    # Lines are all that a report shows of debug information, and the rest takes a sixth of the build.
    target_compile_options(velton_strict INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer -g1)
    target_link_options(velton_strict INTERFACE -fsanitize=address,undefined)
endif()

# Of each set of precompiled headers there is one, which all targets of its kind share. A build without them shows what a
# file forgot to include.
function(velton_headers kind)
    if(VELTON_PCH)
        add_library(velton_headers_${kind} OBJECT ${CMAKE_SOURCE_DIR}/cmake/Pch.cpp)
        target_link_libraries(velton_headers_${kind} PRIVATE velton_strict ${ARGN})
        target_precompile_headers(velton_headers_${kind} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/Pch_${kind}.h)
    endif()
endfunction()
function(velton_precompile target kind)
    if(VELTON_PCH)
        target_precompile_headers(${target} REUSE_FROM velton_headers_${kind})
    endif()
endfunction()
velton_headers(core Qt6::Core)
velton_headers(widgets Qt6::Widgets)

# velton_program(NAME LINK targets... SOURCES files...): an executable that is no test.
function(velton_program name)
    cmake_parse_arguments(PROGRAM "WIDGETS" "" "LINK;SOURCES" ${ARGN})
    add_executable(${name} ${PROGRAM_SOURCES})
    target_link_libraries(${name} PRIVATE velton_strict ${PROGRAM_LINK})
    if(PROGRAM_WIDGETS)
        velton_precompile(${name} widgets)
    else()
        velton_precompile(${name} core)
    endif()
endfunction()

# velton_room(NAME LINK targets... [WIDGETS]): one library a folder; its link line is its arrows.
function(velton_room name)
    cmake_parse_arguments(ROOM "WIDGETS" "" "LINK;SOURCES" ${ARGN})
    add_library(velton_${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(velton_${name} PUBLIC velton_strict ${ROOM_LINK})
    if(ROOM_WIDGETS)
        # Not by automatic uic: other rooms include these headers through the screens', so the build must know them.
        file(GLOB_RECURSE forms CONFIGURE_DEPENDS *.ui)
        qt_wrap_ui(form_headers ${forms})
        target_sources(velton_${name} PRIVATE ${form_headers})
        target_include_directories(velton_${name} PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
        velton_precompile(velton_${name} widgets)
    else()
        velton_precompile(velton_${name} core)
    endif()
    set_target_properties(velton_${name} PROPERTIES AUTOMOC ON)
endfunction()

# What every test runs under.
set(VELTON_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=en_US.UTF-8;\
LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/leaks.txt:print_suppressions=0")

# velton_test(NAME LINK targets... SOURCES files... [PLAIN] [BOTH_ENGINES] [FILES_ALONE tests...]): one test program a
# room, run off-screen; a plain one knows no screens. With BOTH_ENGINES it runs a second time with its main stores on a
# server, but for the tests that are about files, or that would only say the same again.
function(velton_test name)
    cmake_parse_arguments(TEST "PLAIN;BOTH_ENGINES" "" "LINK;SOURCES;ENVIRONMENT;FILES_ALONE" ${ARGN})
    add_executable(test_${name} ${TEST_SOURCES})
    target_link_libraries(test_${name} PRIVATE velton_strict ${TEST_LINK} GTest::gmock)
    target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(test_${name} PRIVATE TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data" SOURCE_ROOT="${CMAKE_SOURCE_DIR}"
        PROGRAMS="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
    if(TEST_PLAIN)
        velton_precompile(test_${name} plain_tests)
    else()
        velton_precompile(test_${name} tests)
    endif()
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600
        ENVIRONMENT "${VELTON_TEST_ENVIRONMENT};${TEST_ENVIRONMENT}")
    if(TEST_BOTH_ENGINES)
        list(JOIN TEST_FILES_ALONE ":" left_out)
        add_test(NAME ${name}-on-server COMMAND test_${name} --gtest_filter=-${left_out})
        set_tests_properties(${name}-on-server PROPERTIES TIMEOUT 600
            ENVIRONMENT "${VELTON_TEST_ENVIRONMENT};${TEST_ENVIRONMENT};VELTON_TESTS_ON=server")
    endif()
endfunction()
