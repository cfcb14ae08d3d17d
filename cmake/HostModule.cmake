# What a host loads into its process: a shared library that can be unloaded again and that leaves
# the host's symbols open, to be bound by whichever host loads it.

# Compiles the target's objects for a loadable module.
function(vx_module_objects target)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  # A unique symbol would pin the module in the process: unloading would not unload.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
endfunction()

# Keeps all but the names in `map` inside the module, where the platform knows such a list.
function(vx_module_exports target map)
  if(CMAKE_EXECUTABLE_FORMAT STREQUAL "ELF")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
  endif()
endfunction()

# Names the module's file exactly, with its extension.
function(vx_module_file target file)
  set_target_properties(${target} PROPERTIES PREFIX "" SUFFIX "" OUTPUT_NAME "${file}")
endfunction()
