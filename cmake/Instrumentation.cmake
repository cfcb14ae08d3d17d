# Sanitizers, coverage and fuzzing change every object file, so they are set for the whole tree.

if(VXDASHBOARD_SANITIZE OR VXDASHBOARD_FUZZ)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The added checks make g++ see uninitialised reads inside the standard library's headers.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

if(VXDASHBOARD_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "VXDASHBOARD_FUZZ needs clang")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(VXDASHBOARD_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
