include(Houseplan)

# room(NAME SOURCES file...)
#
# Declares a room of the house as a static library, "room_NAME" with "/" as "_". Its sources see the headers of the
# room itself and of the rooms that the plan allows, and of no other: every room has a view of its own, a folder with
# links to its headers, and only the views of the allowed rooms are on the include path. A library hands on what it
# links, and not what it sees: else a room would see all that its neighbours see.
function(room NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES" ${ARGN})
  string(REPLACE "/" "_" SLUG ${NAME})
  set(TARGET room_${SLUG})

  set(VIEW ${CMAKE_BINARY_DIR}/views/${SLUG})
  file(REMOVE_RECURSE ${VIEW})
  file(MAKE_DIRECTORY ${VIEW}/${NAME})
  file(GLOB HEADERS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${NAME}/*.h)
  foreach(HEADER IN LISTS HEADERS)
    cmake_path(GET HEADER FILENAME FILE)
    file(CREATE_LINK ${HEADER} ${VIEW}/${NAME}/${FILE} SYMBOLIC)
  endforeach()

  add_library(${TARGET} STATIC ${ARG_SOURCES})
  target_include_directories(${TARGET} PUBLIC ${VIEW})
  foreach(ALLOWED IN LISTS MAY_INCLUDE_${NAME})
    string(REPLACE "/" "_" ALLOWED_SLUG ${ALLOWED})
    if(TARGET room_${ALLOWED_SLUG} AND NOT ALLOWED STREQUAL NAME AND NOT ALLOWED STREQUAL "platform/qt")
      target_link_libraries(${TARGET} PRIVATE room_${ALLOWED_SLUG})
    endif()
  endforeach()
endfunction()

# see_rooms(TARGET PRIVATE|PUBLIC rooms...)
#
# Has a target outside of the house, such as the program or its tests, see and link these rooms.
function(see_rooms TARGET SCOPE)
  foreach(ROOM IN LISTS ARGN)
    string(REPLACE "/" "_" SLUG ${ROOM})
    if(TARGET room_${SLUG})
      target_link_libraries(${TARGET} ${SCOPE} room_${SLUG})
    endif()
  endforeach()
endfunction()
