# vlmr_engine_module(<Name> [DEPS <modules>...] [PRIVATE_DEPS <libs>...])
# One stand-in engine module: a shared library named like the engine module, with Public/ as its include root,
# hidden visibility and the <NAME>_API export macro the engine uses.
function(vlmr_engine_module NAME)
	cmake_parse_arguments(ARG "" "" "DEPS;PRIVATE_DEPS" ${ARGN})
	file(GLOB_RECURSE SOURCES CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/Private/*.cpp")
	add_library(${NAME} SHARED ${SOURCES})
	string(TOUPPER "${NAME}" UPPER)
	target_compile_definitions(${NAME} PUBLIC "${UPPER}_API=__attribute__((visibility(\"default\")))")
	target_include_directories(${NAME} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}/Public"
		PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/Private")
	target_link_libraries(${NAME} PUBLIC ${ARG_DEPS} PRIVATE ${ARG_PRIVATE_DEPS})
	set_property(GLOBAL APPEND PROPERTY VLMR_ENGINE_MODULES ${NAME})
endfunction()
