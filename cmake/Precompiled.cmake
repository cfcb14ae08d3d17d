# The standard headers that most files include are read once a target instead of once a file. The
# module itself goes without: it has to name each header it needs.

function(vx_precompile_headers target)
  target_precompile_headers(${target} PRIVATE
    <algorithm> <filesystem> <functional> <map> <memory> <optional> <string> <vector> ${ARGN})
endfunction()
