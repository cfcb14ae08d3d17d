# Target runtime: the dashboard, everything it finds beside it when it runs, and the programs that
# load it. Target runtime_modules: the same without the programs.

add_custom_target(runtime_modules)
add_custom_target(runtime DEPENDS runtime_modules)

get_property(host_modules GLOBAL PROPERTY vx_host_modules)
set(resource_modules)
if(EXISTS "${PROJECT_SOURCE_DIR}/resources/CMakeLists.txt")
  get_property(resource_modules DIRECTORY "${PROJECT_SOURCE_DIR}/resources"
    PROPERTY BUILDSYSTEM_TARGETS)
endif()
foreach(target IN ITEMS VxDashboard ${host_modules} ${resource_modules})
  if(TARGET ${target})
    add_dependencies(runtime_modules ${target})
  endif()
endforeach()
foreach(target IN ITEMS workbench workbench-desktop)
  if(TARGET ${target})
    add_dependencies(runtime ${target})
  endif()
endforeach()
