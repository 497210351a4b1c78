#include "Graph/MovieGraphCommon.h"

#include "UObject/Class.h"

#if UE_VERSION_OLDER_THAN(5, 8, 0)
STANDIN_IMPLEMENT_ENUM(EMovieGraphValueType, "MovieRenderPipelineCore", None, Bool, Byte, Int32, Int64, Float, Double, Name, String, Text, Enum,
	Struct, Object, SoftObject, Class, SoftClass, UInt32, UInt64, Count)
STANDIN_IMPLEMENT_ENUM(EMovieGraphContainerType, "MovieRenderPipelineCore", None, Array, Count)
#else
STANDIN_IMPLEMENT_ENUM(EMovieGraphValueType, "MovieRenderPipelineCore", None, Bool, Byte, Int32, Int64, Float, Double, Name, String, Text, Enum,
	Struct, Object, SoftObject, Class, SoftClass, Int8, Int16, UInt16, UInt32, UInt64, Count)
STANDIN_IMPLEMENT_ENUM(EMovieGraphContainerType, "MovieRenderPipelineCore", None, Array, Set, Map, Count)
#endif

STANDIN_IMPLEMENT_ENUM(EMovieGraphBranchRestriction, "MovieRenderPipelineCore", Any, Globals, RenderLayer)
