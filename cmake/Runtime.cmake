# Target runtime: the dashboard and everything it finds beside it when it runs.

add_custom_target(runtime)

get_property(host_modules GLOBAL PROPERTY vx_host_modules)
set(resource_modules)
if(EXISTS "${PROJECT_SOURCE_DIR}/resources/CMakeLists.txt")
  get_property(resource_modules DIRECTORY "${PROJECT_SOURCE_DIR}/resources"
    PROPERTY BUILDSYSTEM_TARGETS)
endif()
foreach(target IN ITEMS VxDashboard workbench workbench-desktop ${host_modules} ${resource_modules})
  if(TARGET ${target})
    add_dependencies(runtime ${target})
  endif()
endforeach()
