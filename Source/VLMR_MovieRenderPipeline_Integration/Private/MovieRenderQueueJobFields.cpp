#include "MovieRenderQueueJobFields.h"

#include "Graph/MovieGraphConfig.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderQueueAccess.h"
#include "VLMRLuaStackTable.h"

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

	void WriteJobFields(FLuaStackTable& Row, const FJobFields& Fields)
	{
		Row.SetText("sequence", Fields.Sequence);
		Row.SetText("map", Fields.Map);
		Row.SetText("author", Fields.Author);
		Row.SetText("job_name", Fields.JobName);
		Row.SetText("comment", Fields.Comment);
		Row.SetBool("is_enabled", Fields.bIsEnabled);
		Row.SetBool("is_consumed", Fields.bIsConsumed);
		Row.SetText("user_data", Fields.UserData);
		Row.SetBool("is_graph_config", Fields.bIsGraphConfig);
	}

	void WriteJobFields(sol::table& Row, const FJobFields& Fields)
	{
		FLuaStackTable Table(Row);
		WriteJobFields(Table, Fields);
	}
}
