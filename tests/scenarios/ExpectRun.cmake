# Runs vlmr and checks its exit code and what it wrote.
#   cmake -DVLMR=<program> -DARGUMENTS=<arguments separated by |> -DEXPECTED_EXIT=<code>
#         [-DEXPECTED_STDERR=<regex>] [-DEXPECTED_STDOUT=<regex>] [-DSCRIPT=<scenario>]
#         [-DREMOVE_BEFORE=<folder>] [-DEXPECTED_FILE=<file that must exist afterwards>]
#         [-DEXPECTED_FILE_CONTENT=<regex the whole content of EXPECTED_FILE must match>]
#         [-DTEMPORARY_DIR=<folder, made empty and given as TMPDIR, that must be empty afterwards>] -P ExpectRun.cmake
# A scenario may give its expectations in its first lines: "-- expect-error: <regex>" and "-- expect-output: <regex>".
if(SCRIPT)
	file(STRINGS "${SCRIPT}" ExpectationLines REGEX "^-- expect-(error|output): ")
	foreach(Line IN LISTS ExpectationLines)
		if(Line MATCHES "^-- expect-error: (.*)$")
			set(EXPECTED_STDERR "${CMAKE_MATCH_1}")
		elseif(Line MATCHES "^-- expect-output: (.*)$")
			set(EXPECTED_STDOUT "${CMAKE_MATCH_1}")
		endif()
	endforeach()
endif()

if(REMOVE_BEFORE)
	file(REMOVE_RECURSE "${REMOVE_BEFORE}")
endif()

if(TEMPORARY_DIR)
	file(REMOVE_RECURSE "${TEMPORARY_DIR}")
	file(MAKE_DIRECTORY "${TEMPORARY_DIR}")
	set(ENV{TMPDIR} "${TEMPORARY_DIR}")
endif()

string(REPLACE "|" ";" ArgumentList "${ARGUMENTS}")
execute_process(COMMAND "${VLMR}" ${ArgumentList}
	RESULT_VARIABLE ExitCode OUTPUT_VARIABLE Output ERROR_VARIABLE Errors)
string(STRIP "${Output}" Output)
string(STRIP "${Errors}" Errors)

if(NOT ExitCode STREQUAL EXPECTED_EXIT)
	message(FATAL_ERROR "exit code ${ExitCode}, expected ${EXPECTED_EXIT}\nstdout:\n${Output}\nstderr:\n${Errors}")
endif()
if(DEFINED EXPECTED_STDERR AND NOT Errors MATCHES "${EXPECTED_STDERR}")
	message(FATAL_ERROR "stderr does not match '${EXPECTED_STDERR}':\n${Errors}")
endif()
if(DEFINED EXPECTED_STDOUT AND NOT Output MATCHES "${EXPECTED_STDOUT}")
	message(FATAL_ERROR "stdout does not match '${EXPECTED_STDOUT}':\n${Output}")
endif()
if(TEMPORARY_DIR)
	file(GLOB LeftBehind LIST_DIRECTORIES true "${TEMPORARY_DIR}/*" "${TEMPORARY_DIR}/.*")
	if(LeftBehind)
		message(FATAL_ERROR "left behind in the temporary folder: ${LeftBehind}")
	endif()
endif()
if(DEFINED EXPECTED_FILE AND NOT EXISTS "${EXPECTED_FILE}")
	message(FATAL_ERROR "${EXPECTED_FILE} was not written")
endif()
if(DEFINED EXPECTED_FILE_CONTENT)
	file(READ "${EXPECTED_FILE}" Content)
	if(NOT Content MATCHES "${EXPECTED_FILE_CONTENT}")
		message(FATAL_ERROR "${EXPECTED_FILE} does not match '${EXPECTED_FILE_CONTENT}':\n${Content}")
	endif()
endif()
