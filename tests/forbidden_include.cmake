# Compiles the include of an allowed header, and of a forbidden one, with the folders that a room sees (FOLDERS, with "|"
# between them). The first must pass and the second must not be found.
cmake_minimum_required(VERSION 3.25)

string(REPLACE "|" ";-I" OPTIONS "-I${FOLDERS}")
foreach(HEADER IN ITEMS ${ALLOWED} ${FORBIDDEN})
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E echo "#include \"${HEADER}\""
    COMMAND ${COMPILER} -std=c++20 -fsyntax-only ${OPTIONS} -x c++ -
    RESULTS_VARIABLE RESULTS ERROR_VARIABLE ERRORS)
  list(GET RESULTS 1 RESULT)
  if(HEADER STREQUAL ALLOWED AND NOT RESULT EQUAL 0)
    message(SEND_ERROR "${HEADER} is allowed and does not compile: ${ERRORS}")
  elseif(HEADER STREQUAL FORBIDDEN AND RESULT EQUAL 0)
    message(SEND_ERROR "${HEADER} is forbidden and compiles")
  elseif(HEADER STREQUAL FORBIDDEN AND NOT ERRORS MATCHES "${HEADER}: No such file")
    message(SEND_ERROR "${HEADER} is refused for another reason: ${ERRORS}")
  endif()
endforeach()
