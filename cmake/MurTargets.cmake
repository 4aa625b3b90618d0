# The kinds of target that the project's folders consist of.

# Leaves out of the list what its file name says is for another platform.
function(mur_keep_platform_sources LIST)
  if(WIN32)
    list(FILTER ${LIST} EXCLUDE REGEX "_(icu|posix)\\.cpp$")
  else()
    list(FILTER ${LIST} EXCLUDE REGEX "_win32\\.cpp$")
  endif()
  set(${LIST} ${${LIST}} PARENT_SCOPE)
endfunction()

# One layer of the core: an object library of all sources in its folder, which may use the layers named after
# it (see the layer rule in docs/architecture.md). A folder with headers alone is a layer too.
function(mur_add_layer LAYER)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  mur_keep_platform_sources(sources)
  if(sources)
    add_library(${LAYER} OBJECT ${sources})
    target_link_libraries(${LAYER} PUBLIC mur_settings ${ARGN})
    set_property(GLOBAL APPEND PROPERTY MUR_CORE_OBJECTS $<TARGET_OBJECTS:${LAYER}>)
  else()
    add_library(${LAYER} INTERFACE)
    target_link_libraries(${LAYER} INTERFACE mur_settings ${ARGN})
  endif()
endfunction()

# Keeps sources apart that have a private name in common with a neighbour, where a target's sources are compiled
# together, as the presets release and asan do. Other presets compile each source on its own.
function(mur_compile_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# Parses headers that most sources of a target include once for all of them, where they are many. With ccache,
# which keeps whole compilations but not these, there is more to lose than to win; where sources are compiled
# together, nothing is left to win.
function(mur_precompile TARGET)
  get_target_property(sources ${TARGET} SOURCES)
  list(LENGTH sources count)
  if(NOT MUR_CCACHE AND NOT CMAKE_UNITY_BUILD AND count GREATER 8)
    target_precompile_headers(${TARGET} PRIVATE ${ARGN})
  endif()
endfunction()

# One test program of all test_*.cpp in its folder.
function(mur_add_tests NAME)
  file(GLOB sources CONFIGURE_DEPENDS test_*.cpp)
  mur_keep_platform_sources(sources)
  if(NOT sources)
    return()
  endif()
  add_executable(${NAME} ${sources})
  target_link_libraries(${NAME} PRIVATE mur_settings mur_test_support ${ARGN} GTest::gmock)
  target_include_directories(${NAME} PRIVATE ${CMAKE_SOURCE_DIR})
  # A test's own code does little: optimising it takes longer than it wins.
  target_compile_options(${NAME} PRIVATE -O0)
  mur_precompile(${NAME} <functional> <string> <vector> <gtest/gtest.h>)
  add_test(NAME ${NAME} COMMAND ${NAME})
endfunction()

# A library that hosts link: its version, the headers below FOLDERS (all of them public) and its place in the
# installed package. It is MURTimeline::COMPONENT in this tree and in theirs.
function(mur_publish_library TARGET COMPONENT)
  list(TRANSFORM ARGN APPEND /*.h OUTPUT_VARIABLE patterns)
  list(TRANSFORM patterns PREPEND ${PROJECT_SOURCE_DIR}/murtimeline/)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${patterns})
  target_sources(${TARGET} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
  target_compile_features(${TARGET} INTERFACE cxx_std_20)
  set_target_properties(${TARGET} PROPERTIES EXPORT_NAME ${COMPONENT} VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  add_library(MURTimeline::${COMPONENT} ALIAS ${TARGET})
  install(TARGETS ${TARGET} EXPORT MURTimeline${COMPONENT}Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT MURTimeline${COMPONENT}Targets NAMESPACE MURTimeline::
    DESTINATION ${MUR_PACKAGE_FOLDER})
endfunction()
