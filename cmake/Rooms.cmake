# A room is a folder of the core with a target of its own. Its headers are reached as
# "room/Header.h", and only by a target that links the room: the include folder of a room holds
# nothing but a link to that room, so an include against the arrow does not compile. A main.cpp is
# left to the executable.
#
#   parlate_room(model general settings)   defines parlate_model from the folder's sources
function(parlate_room name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(parlate_${name} STATIC ${sources})
  set(include_dir ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${include_dir})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_dir}/${name} SYMBOLIC)
  target_include_directories(parlate_${name} PUBLIC ${include_dir})
  target_link_libraries(parlate_${name} PUBLIC parlate_compiler)
  foreach(below IN LISTS ARGN)
    target_link_libraries(parlate_${name} PUBLIC parlate_${below})
  endforeach()
endfunction()
