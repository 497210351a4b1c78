# find_package(Stb): the stb single-file libraries as Debian's libstb-dev packages them, headers in <include>/stb and
# their implementations compiled into libstb. Defines the imported target Stb::Stb.
find_path(Stb_INCLUDE_DIR stb_image_write.h PATH_SUFFIXES stb)
find_library(Stb_LIBRARY NAMES stb)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Stb REQUIRED_VARS Stb_LIBRARY Stb_INCLUDE_DIR)
if(Stb_FOUND AND NOT TARGET Stb::Stb)
	add_library(Stb::Stb UNKNOWN IMPORTED)
	set_target_properties(Stb::Stb PROPERTIES IMPORTED_LOCATION "${Stb_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${Stb_INCLUDE_DIR}")
endif()
mark_as_advanced(Stb_INCLUDE_DIR Stb_LIBRARY)
