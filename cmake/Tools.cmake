# Faster tools, used when they are there.

find_program(VXDASHBOARD_CCACHE ccache)
if(VXDASHBOARD_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${VXDASHBOARD_CCACHE}")
endif()

find_program(VXDASHBOARD_MOLD mold)
if(VXDASHBOARD_MOLD)
  add_link_options(-fuse-ld=mold)
endif()
