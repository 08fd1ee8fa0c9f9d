# Compiler settings and helper functions that every target of the project shares.

add_library(quorvex_options INTERFACE)
target_include_directories(quorvex_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(quorvex_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(quorvex_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_STRICT_ITERATORS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ takes the sources of a batch for headers and objects to a private class with members of an unnamed namespace.
    target_compile_options(quorvex_options INTERFACE -Wno-subobject-linkage)
endif()
if(QUORVEX_SANITIZE)
    target_compile_options(quorvex_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer -O1)
    target_link_options(quorvex_options INTERFACE -fsanitize=address,undefined)
endif()
if(QUORVEX_FUZZ)
    target_compile_options(quorvex_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quorvex_add_library(NAME FOLDER...): a static library of all sources below the folders.
function(quorvex_add_library name)
    set(sources)
    foreach(folder IN LISTS ARGN)
        file(GLOB_RECURSE found CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp"
            "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h")
        list(APPEND sources ${found})
    endforeach()
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC quorvex_options)
endfunction()

# quorvex_add_test(NAME SOURCE... LIBRARIES ...): a Qt Test executable registered with ctest. Window tests run on
# the offscreen platform with a 1024 x 768 screen, whatever display the person at the machine has.
function(quorvex_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES")
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_compile_definitions(${name} PRIVATE QUORVEX_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} Qt6::Test)
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen:configfile=${CMAKE_SOURCE_DIR}/tests/support/screen1024.json;QT_QPA_PLATFORMTHEME=;SDL_AUDIODRIVER=dummy;QUORVEX_INSTALL=${CMAKE_BINARY_DIR}/install")
endfunction()

# quorvex_ship_folder(FOLDER [SOURCE]): `cmake --install` brings this folder of the install folder up to date and keeps
# what people put or changed there. SOURCE is the folder it comes from, by default the one that the build assembles.
function(quorvex_ship_folder folder)
    set(source "${QUORVEX_INSTALL_FOLDER}/${folder}")
    if(ARGC GREATER 1)
        set(source "${ARGV1}")
    endif()
    install(CODE "execute_process(COMMAND \"${CMAKE_COMMAND}\" \"-DFROM=${source}\"
        \"-DTO=\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}\" -P \"${CMAKE_SOURCE_DIR}/cmake/UpdateFolder.cmake\"
        COMMAND_ERROR_IS_FATAL ANY)")
endfunction()
