# Target headers_alone: each header compiles without help from an earlier include.

add_custom_target(headers_alone)

function(vx_headers_alone name folder include_prefix)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}/${folder}"
    "${PROJECT_SOURCE_DIR}/${folder}/*.h")
  if(NOT headers)
    return()
  endif()
  set(sources)
  foreach(header IN LISTS headers)
    set(source "${CMAKE_BINARY_DIR}/headers_alone/${folder}/${header}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${include_prefix}${header}\"\n" @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${sources})
  target_link_libraries(${name} PRIVATE warnings ${ARGN})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/src")
  target_compile_options(${name} PRIVATE -O0 -g0)
  add_dependencies(headers_alone ${name})
endfunction()

vx_headers_alone(headers_alone_product src "")
if(TARGET vxworkbench)
  vx_headers_alone(headers_alone_workbench workbench "workbench/" vxworkbench
    $<TARGET_NAME_IF_EXISTS:vxdesktop>)
endif()
