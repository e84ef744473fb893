# The pictures of short sessions: the panel only when it looks different, each message window as it
# comes up. Run in the folder testdata with PROGRAM, SCRIPTS and FOLDER.

# check_pictures(<script> <picture>...): a script of the folder SCRIPTS, or one at a path.
function(check_pictures script)
  file(REMOVE_RECURSE ${FOLDER})
  cmake_path(ABSOLUTE_PATH script BASE_DIRECTORY ${SCRIPTS} OUTPUT_VARIABLE file)
  execute_process(COMMAND ${PROGRAM} --root root --screenshots ${FOLDER}/new ${file}
    RESULT_VARIABLE status OUTPUT_QUIET)
  if(NOT status EQUAL 0)
    message(SEND_ERROR "${script} ended with status ${status}.")
  endif()
  file(GLOB pictures RELATIVE ${FOLDER}/new ${FOLDER}/new/*)
  if(NOT pictures STREQUAL ARGN)
    message(SEND_ERROR "The pictures of ${script} are ${pictures}.")
  endif()
  foreach(picture IN LISTS pictures)
    file(READ ${FOLDER}/new/${picture} start LIMIT 8 HEX)
    if(NOT start STREQUAL "89504e470d0a1a0a")
      message(SEND_ERROR "${picture} is no PNG.")
    endif()
  endforeach()
endfunction()

check_pictures(code-08-glossy-in-black.jsonl
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

# Another panel of the same name is pictured though it looks the same.
set(show [[
{"do": "open", "ppd": "two-trays.ppd"}
{"do": "panelView"}
{"do": "willShow"}
]])
file(WRITE ${FOLDER}.jsonl "${show}{\"do\": \"close\"}\n${show}")
check_pictures(${FOLDER}.jsonl 001-panel-1.png 002-panel-1.png)

# A picture that cannot be written takes away the success, not what the replies say.
function(check_unwritable script expected)
  file(REMOVE_RECURSE ${FOLDER})
  file(MAKE_DIRECTORY ${FOLDER}/new/001-panel-1.png)  # a folder where the first picture belongs
  execute_process(COMMAND ${PROGRAM} --root root --screenshots ${FOLDER}/new ${SCRIPTS}/${script}
    RESULT_VARIABLE status OUTPUT_VARIABLE replies ERROR_VARIABLE said)
  if(NOT status EQUAL expected OR NOT said MATCHES "001-panel-1.png\" cannot be written"
     OR replies STREQUAL "")
    message(SEND_ERROR "${script}: status ${status}, said: ${said}")
  endif()
endfunction()

check_unwritable(code-08-glossy-in-black.jsonl 2)
check_unwritable(answers-that-do-not-fit.jsonl 1)
check_unwritable(no-answer-left.jsonl 3)

# With the slider in view, which some styles draw otherwise the first time after a window.
check_pictures(code-10-mirror-on-envelope.jsonl
  001-panel-1.png          # shown
  002-panel-1.png          # disclosed
  003-MsgTwo.png           # mirror, answered with OK: ends as it began
  004-MsgTwo.png           # mirror again: instructions
  005-Instructions.png
  006-panel-1.png
  007-MsgTwo.png           # quality: closed, comes back
  008-MsgTwo.png
  009-panel-1.png
  010-MsgTwo.png           # mirror: goes on without resolving
  011-panel-1.png
  012-panel-1.png          # quality
  013-panel-1.png          # another panel
  014-panel-1.png
  015-panel-1.png)
