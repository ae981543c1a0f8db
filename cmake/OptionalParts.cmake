# Which parts besides the library are built. A part that nobody asked for is built if this is the top
# project and its package is there, and is left out with a message otherwise; a part that was asked for
# with -DBEXA_BUILD_...=ON is built, and a missing package is an error.
function(bexa_optional_part part package)
  set(option_name "BEXA_BUILD_${part}")
  if(DEFINED ${option_name})
    set(asked_for TRUE)
  else()
    set(asked_for FALSE)
  endif()

  set(available ${PROJECT_IS_TOP_LEVEL})
  if(package AND (PROJECT_IS_TOP_LEVEL OR asked_for))
    if(asked_for AND ${option_name})
      find_package(${package} REQUIRED)
    elseif(NOT asked_for)
      find_package(${package} QUIET)
      set(available ${${package}_FOUND})
      if(NOT available)
        message(STATUS "bexa: ${package} not found, leaving out what ${option_name} stands for")
      endif()
    endif()
  endif()

  # Remembered only if asked for: a package installed later is noticed by the next configure.
  if(NOT asked_for)
    set(${option_name} ${available} PARENT_SCOPE)
  endif()
endfunction()

bexa_optional_part(TOOLS CLI11)
bexa_optional_part(TESTS GTest)
bexa_optional_part(EXAMPLES "")
bexa_optional_part(BENCH benchmark)
