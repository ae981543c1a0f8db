# What a configure without any option gets. Nothing here touches a project that embeds this one.

if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

get_property(is_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT is_multi_config AND NOT CMAKE_BUILD_TYPE)
  message(STATUS "bexa: no build type given, taking Release")
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(BEXA_CCACHE ccache)
  mark_as_advanced(BEXA_CCACHE)
  if(BEXA_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${BEXA_CCACHE}")
  endif()
endif()
