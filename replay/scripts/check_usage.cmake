# What ends a session before it starts: status 2, nothing on standard output, a sentence that names
# the thing. Run in the folder testdata with PROGRAM.

function(refused named)
  execute_process(COMMAND ${PROGRAM} ${ARGN} INPUT_FILE /dev/null
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE reason)
  if(NOT status EQUAL 2 OR NOT output STREQUAL "" OR NOT reason MATCHES "^tavrin-replay: .*${named}")
    message(SEND_ERROR "${ARGN}: status ${status}, said: ${output}${reason}")
  endif()
endfunction()

refused("loud" --loud)
refused("second.jsonl" first.jsonl second.jsonl)
refused("no-such.jsonl" no-such.jsonl)
refused("root" root)
refused("--root" --root=)
refused("no-such.plugin" --bundle no-such.plugin)
refused("P700.plugin" --bundle root/Library/Printers/Tavrin/2007/P700.plugin)
refused("not-a-ppd.ppd" --screenshots not-a-ppd.ppd)

execute_process(COMMAND ${PROGRAM} --help RESULT_VARIABLE status OUTPUT_VARIABLE help)
if(NOT status EQUAL 0 OR NOT help MATCHES "saveValuesAndReturnError:")
  message(SEND_ERROR "--help: status ${status}, said: ${help}")
endif()
execute_process(COMMAND ${PROGRAM} - INPUT_FILE /dev/null RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(SEND_ERROR "An empty script ended with status ${status}.")
endif()
