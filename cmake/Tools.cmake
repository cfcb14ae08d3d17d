# Faster tools, used when they are there.

find_program(VXDASHBOARD_CCACHE ccache)
if(VXDASHBOARD_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  # Without these it would not cache what uses a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros "${VXDASHBOARD_CCACHE}")
endif()

find_program(VXDASHBOARD_MOLD mold)
if(VXDASHBOARD_MOLD)
  add_link_options(-fuse-ld=mold)
endif()
