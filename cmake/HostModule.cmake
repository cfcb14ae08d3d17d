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

# Names the module's file exactly, with its extension.
function(vx_module_file target file)
  set_target_properties(${target} PROPERTIES PREFIX "" SUFFIX "" OUTPUT_NAME "${file}")
endfunction()
