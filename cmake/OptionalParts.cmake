# Which parts besides the library are built. A part that nobody asked for is built if this is the top
# project and the packages it needs are there, and is left out with a message otherwise. A part asked for
# with -DBEXA_BUILD_...=ON is built, and a missing package is an error.
#
# To add a package: its name here, find_package where it is used, and its Debian name in scripts/setup.

# bexa_optional_part(PART package ...)
function(bexa_optional_part part)
  set(option_name "BEXA_BUILD_${part}")
  if(DEFINED ${option_name})
    return()
  endif()

  # Not cached: what is installed later is noticed by the next configure.
  set(${option_name} ${PROJECT_IS_TOP_LEVEL} PARENT_SCOPE)
  if(NOT PROJECT_IS_TOP_LEVEL)
    return()
  endif()
  foreach(package IN LISTS ARGN)
    find_package(${package} QUIET)
    if(NOT ${package}_FOUND)
      message(STATUS "bexa: no ${package}, leaving out what ${option_name} stands for")
      set(${option_name} OFF PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

bexa_optional_part(TOOLS CLI11 nlohmann_json Iconv)
bexa_optional_part(TESTS GTest Python3)
bexa_optional_part(EXAMPLES)
bexa_optional_part(BENCH benchmark)
