# The pictures of a short session: the panel only when it looks other than before, each message
# window as it comes up. Run in the folder testdata with PROGRAM, SCRIPT and FOLDER.
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${PROGRAM} --root root --screenshots ${FOLDER}/new ${SCRIPT}
  RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "The session ended with status ${status}.")
endif()

file(GLOB pictures RELATIVE ${FOLDER}/new ${FOLDER}/new/*)
set(expected
  001-panel-1.png          # shown
  002-panel-1.png          # black and white
  003-MsgFive.png          # glossy paper, answered with OK
  004-panel-1.png
  005-MsgFive.png          # black again: instructions
  006-Instructions.png
  007-panel-1.png
  008-MsgFive.png          # closed, comes back
  009-MsgFive.png
  010-panel-1.png
  011-MsgFive.png)         # ends as it began
if(NOT pictures STREQUAL expected)
  message(FATAL_ERROR "The pictures are ${pictures}.")
endif()
foreach(picture IN LISTS pictures)
  file(READ ${FOLDER}/new/${picture} start LIMIT 8 HEX)
  if(NOT start STREQUAL "89504e470d0a1a0a")
    message(FATAL_ERROR "${picture} is no PNG.")
  endif()
endforeach()
