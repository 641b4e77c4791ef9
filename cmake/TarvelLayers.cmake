# Layers: each folder of src/core and src/editor is a library that links only the folders before it.

# Adds the library of the folder DIR, next to the calling list file: NAME, its sources, all files of
# the folder, and after DEPENDS what it may use.
function(tarvel_add_layer name dir)
  cmake_parse_arguments(PARSE_ARGV 2 arg "QT" "" "DEPENDS;WITHOUT")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.cpp
                                              ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.h)
  foreach(left ${arg_WITHOUT})
    list(REMOVE_ITEM sources ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/${left})
  endforeach()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${arg_DEPENDS})
  set_target_properties(${name} PROPERTIES AUTOMOC ${arg_QT})
  if(TARVEL_LAYER_PROOFS)
    tarvel_prove_layer(${name} ${arg_DEPENDS})
  endif()
endfunction()

# Links everything in a layer with the layers before it alone. Something taken from a later one is
# missing then, and the build fails. A library by itself would not tell: it may miss anything.
function(tarvel_prove_layer name)
  set(stub ${PROJECT_BINARY_DIR}/layer_proof.cpp)
  if(NOT EXISTS ${stub})
    file(WRITE ${stub} "int main() {}\n")
  endif()
  add_executable(${name}_alone ${stub})
  set_target_properties(${name}_alone PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/proofs)
  target_link_libraries(${name}_alone PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,${name}> ${ARGN})
endfunction()
