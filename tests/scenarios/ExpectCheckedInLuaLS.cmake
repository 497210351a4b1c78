# Runs `vlmr docs --luals` and fails when what it prints differs from the checked-in definition library.
#   cmake -DVLMR=<program> -DCHECKED_IN=<docs/luals/vlmr.lua> -DGENERATED=<scratch file> -P ExpectCheckedInLuaLS.cmake
execute_process(COMMAND "${VLMR}" docs --luals RESULT_VARIABLE ExitCode OUTPUT_VARIABLE Generated ERROR_VARIABLE Errors)
if(NOT ExitCode EQUAL 0)
	message(FATAL_ERROR "vlmr docs --luals exited with ${ExitCode}:\n${Errors}")
endif()
file(READ "${CHECKED_IN}" CheckedIn)
if(Generated STREQUAL CheckedIn)
	return()
endif()

file(WRITE "${GENERATED}" "${Generated}")
execute_process(COMMAND diff -u "${CHECKED_IN}" "${GENERATED}" OUTPUT_VARIABLE Difference)
message(FATAL_ERROR "${CHECKED_IN} differs from what vlmr docs --luals prints:\n${Difference}\n"
	"Regenerate it with:\n  ${VLMR} docs --luals > ${CHECKED_IN}")
