# Compiles IDL text to a type library; run with -P. Needs WIDL, BITS, IDL, OUTPUT, INCLUDE, LIBRARIES.
# The compiler copies texts as they are into a library of the Windows-1252 code page, and ends well
# in spite of what it warns of: both are looked after here.
get_filename_component(name "${IDL}" NAME)
get_filename_component(folder "${OUTPUT}" DIRECTORY)
set(narrow "${folder}/${name}")
execute_process(
  COMMAND iconv -f UTF-8 -t WINDOWS-1252 "${IDL}"
  OUTPUT_FILE "${narrow}"
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND "${WIDL}" --win${BITS} -t -o "${OUTPUT}" -I "${INCLUDE}" -L "${LIBRARIES}" "${narrow}"
  OUTPUT_VARIABLE said
  ERROR_VARIABLE said
  RESULT_VARIABLE result)
# It warns of the defaults of arguments by reference and writes them all the same: what the loaded
# library says of them is compared by the tests.
string(REPLACE "warning: non-null pointer default value\n" "" said "${said}")
if(NOT result EQUAL 0 OR NOT said STREQUAL "")
  file(REMOVE "${OUTPUT}")
  message(FATAL_ERROR "${IDL} does not compile:\n${said}")
endif()
