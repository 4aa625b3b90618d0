# What every target of the project is built with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(MUR_CCACHE ccache)
if(MUR_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${MUR_CCACHE})
endif()

set(MUR_SANITIZE "" CACHE STRING "Sanitizers for everything, for example address,undefined")
option(MUR_COVERAGE "Instrument for coverage" OFF)

add_library(mur_settings INTERFACE)
target_include_directories(mur_settings INTERFACE $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
# Plain IEEE double without contraction, so that every platform gives the same bits.
target_compile_options(mur_settings INTERFACE -ffp-contract=off)
target_compile_options(mur_settings INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees an overlap in every std::string that starts with a literal (its bug 105651), and an overrun in
  # every std::sort on a small array. The sanitizers find the real ones.
  target_compile_options(mur_settings INTERFACE -Wno-restrict -Wno-array-bounds)
endif()
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Where sources are compiled together, each counts as a header, whose private classes would be a mistake.
  target_compile_options(mur_settings INTERFACE -Wno-subobject-linkage)
endif()
if(MUR_SANITIZE)
  # float-cast-overflow is not part of "undefined" in g++ and must be named.
  target_compile_options(mur_settings INTERFACE -fsanitize=${MUR_SANITIZE},float-cast-overflow
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(mur_settings INTERFACE -fsanitize=${MUR_SANITIZE})
endif()
if(MUR_COVERAGE)
  target_compile_options(mur_settings INTERFACE --coverage -O0 -fprofile-update=atomic)
  target_link_options(mur_settings INTERFACE --coverage)
endif()
