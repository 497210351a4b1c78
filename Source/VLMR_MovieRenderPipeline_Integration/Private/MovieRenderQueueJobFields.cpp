#include "MovieRenderQueueJobFields.h"

#include "Graph/MovieGraphConfig.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderQueueAccess.h"
#include "VLMRScriptArguments.h"

namespace VLMR
{
	FJobFields ReadJobFields(UMoviePipelineExecutorJob& Job)
	{
		FJobFields Fields;
		Fields.Sequence = ToAssetPathString(Job.Sequence);
		Fields.Map = ToAssetPathString(Job.Map);
		Fields.Author = Job.Author;
		Fields.JobName = Job.JobName;
		Fields.Comment = Job.Comment;
		Fields.UserData = Job.UserData;
		Fields.bIsEnabled = Job.IsEnabled();
		Fields.bIsConsumed = Job.IsConsumed();
		Fields.bIsGraphConfig = Cast<UMovieGraphConfig>(Job.GetGraphPreset()) != nullptr;
		return Fields;
	}

	void WriteJobFields(sol::table& Row, const FJobFields& Fields)
	{
		Row["sequence"] = ToUtf8(Fields.Sequence);
		Row["map"] = ToUtf8(Fields.Map);
		Row["author"] = ToUtf8(Fields.Author);
		Row["job_name"] = ToUtf8(Fields.JobName);
		Row["comment"] = ToUtf8(Fields.Comment);
		Row["is_enabled"] = Fields.bIsEnabled;
		Row["is_consumed"] = Fields.bIsConsumed;
		Row["user_data"] = ToUtf8(Fields.UserData);
		Row["is_graph_config"] = Fields.bIsGraphConfig;
	}
}
