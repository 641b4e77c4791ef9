# What makes builds quicker and changes nothing in what is built: a compiler cache and a fast linker
# where the machine has them. Precompiled headers stand with the targets that use them.

find_program(TARVEL_CCACHE ccache)
if(TARVEL_CCACHE AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  # Precompiled headers carry times and macros that have no part in what is compiled.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${TARVEL_CCACHE})
  add_compile_options(-fpch-preprocess)
endif()

# lld reads no intermediate code of GCC.
find_program(TARVEL_LLD ld.lld)
if(TARVEL_LLD AND NOT CMAKE_INTERPROCEDURAL_OPTIMIZATION)
  add_link_options(-fuse-ld=lld)
endif()
