// The fields of a queue job that both the queue listing and a job handle's info report.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class UMoviePipelineExecutorJob;

namespace VLMR
{
	class FLuaStackTable;

	// A job's fields as read at one moment, so that building the Lua table touches no engine object.
	struct FJobFields
	{
		FString Sequence;
		FString Map;
		FString Author;
		FString JobName;
		FString Comment;
		FString UserData;
		bool bIsEnabled = false;
		bool bIsConsumed = false;
		bool bIsGraphConfig = false;
	};

	// Reads the job; its graph preset is loaded when it is not in memory, so the caller holds the job.
	FJobFields ReadJobFields(UMoviePipelineExecutorJob& Job);

	// How many fields WriteJobFields writes, for sizing the row's table.
	constexpr int32 JobFieldCount = 9;

	// Writes sequence, map, author, job_name, comment, is_enabled, is_consumed, user_data and is_graph_config.
	void WriteJobFields(FLuaStackTable& Row, const FJobFields& Fields);
	void WriteJobFields(sol::table& Row, const FJobFields& Fields);
}
