#include "HandleTypes.h"

namespace UE::Vlmr
{
	const TArray<FHandleType>& GetHandleTypes()
	{
		static const TArray<FHandleType> HandleTypes = {
			{ TEXT("job"), { TEXT("sequence"), TEXT("__vlmr_mrq_job_identity") },
				{ TEXT("find_or_add_setting"), TEXT("remove_setting"), TEXT("list_settings"), TEXT("set_map"), TEXT("set_author"),
					TEXT("set_job_name"), TEXT("set_comment"), TEXT("set_enabled"), TEXT("set_consumed"), TEXT("is_consumed"),
					TEXT("set_sequence"), TEXT("set_config"), TEXT("set_graph"), TEXT("info"), TEXT("output_directory"), TEXT("evaluate") } },
			{ TEXT("config"), { TEXT("path") },
				{ TEXT("find_or_add_setting"), TEXT("remove_setting"), TEXT("list_settings"), TEXT("info"), TEXT("save") } },
			{ TEXT("graph"), { TEXT("path") },
				{ TEXT("info"), TEXT("add_variable"), TEXT("add_input"), TEXT("add_output"), TEXT("delete_member"), TEXT("add_node"),
					TEXT("set_node_disabled"), TEXT("connect"), TEXT("disconnect"), TEXT("save"), TEXT("evaluate"), TEXT("output_settings"),
					TEXT("resolution"), TEXT("output_directory"), TEXT("branches"), TEXT("nodes_for_branch"), TEXT("nodes_for_tag"),
					TEXT("get_node_property"), TEXT("set_node_property"), TEXT("get_variable"), TEXT("set_variable"), TEXT("remove_node"),
					TEXT("insert_before"), TEXT("insert_after") } },
			{ TEXT("setting"), { TEXT("_name") },
				{ TEXT("info"), TEXT("set_enabled"), TEXT("get"), TEXT("set"), TEXT("list_properties"), TEXT("add_or_update_console_variable"),
					TEXT("remove_console_variable"), TEXT("set_console_variable_enabled"), TEXT("list_console_variables") } },
		};
		return HandleTypes;
	}
}
