// graph:set_variable converts and validates a value before it writes: refusals leave the variable as it was.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Graph/MovieGraphConfig.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGSetVariableTest, "Velmire.MovieRenderGraph.SetVariableValidateBeforeMutate", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const SetVariableScript = R"lua(
local graph = mrq_open_graph(graph_path)
assert(graph, "open transient graph")

local info = graph:get_variable(float_name)
assert(info and info.type == "Float" and info.is_global == false, "float variable info")
local function float_value()
	return tonumber(graph:get_variable(float_name).value)
end
assert(graph:set_variable(float_name, 2.25) == true, "set float")
assert(math.abs(float_value() - 2.25) < 1e-4, "float readback")

local mismatch = graph:set_variable(float_name, "not a number")
assert(type(mismatch) == "table" and mismatch.ok == false, "type mismatch refused")
assert(math.abs(float_value() - 2.25) < 1e-4, "previous value survives refusal")
local bool_into_float = graph:set_variable(float_name, true)
assert(type(bool_into_float) == "table" and bool_into_float.ok == false, "bool into float refused")

assert(graph:set_variable(bool_name, true) == true, "set bool")
assert(graph:get_variable(bool_name).value == "True", "bool readback")

local unknown = graph:set_variable("VLMR_NoSuchVariable", 1)
assert(type(unknown) == "table" and unknown.ok == false, "unknown refused")
if global_name then
	local global = graph:set_variable(global_name, "value")
	assert(type(global) == "table" and global.ok == false, "global refused")
end
)lua";

	constexpr float SeedValue = 0.5f;
}

// The name of the first global variable the graph exposes, or empty.
static FString FindGlobalVariableName(const UMovieGraphConfig& Graph)
{
	for (const UMovieGraphVariable* Variable : Graph.GetVariables(true))
	{
		if (Variable && Variable->IsGlobal())
		{
			return Variable->GetMemberName();
		}
	}
	return FString();
}

bool FVLMRMRGSetVariableTest::RunTest(const FString& Parameters)
{
	using namespace VLMR::MovieRenderGraphTests;
	FGraphFixture Fixture;
	if (!BuildGraphFixture(*this, 640, 360, true, Fixture))
	{
		return false;
	}
	const TStrongObjectPtr<UMovieGraphVariable> FloatVariable(Fixture.Graph->AddVariable(FName(TEXT("VLMRFloat"))));
	if (!FloatVariable)
	{
		AddError(TEXT("AddVariable failed"));
		return false;
	}
	float Seed = 0.f;
	TestTrue(TEXT("seed float"), FloatVariable->SetValueFloat(SeedValue) && FloatVariable->GetValueFloat(Seed) && Seed == SeedValue);
	const TStrongObjectPtr<UMovieGraphVariable> BoolVariable(Fixture.Graph->AddVariable(FName(TEXT("VLMRBool"))));
	if (!BoolVariable)
	{
		AddError(TEXT("AddVariable bool failed"));
		return false;
	}
	BoolVariable->SetValueType(EMovieGraphValueType::Bool);

	FScriptEnvironment Script;
	Script.SetGlobal("graph_path", Fixture.GetGraphPath());
	Script.SetGlobal("float_name", FloatVariable->GetMemberName());
	Script.SetGlobal("bool_name", BoolVariable->GetMemberName());
	const FString GlobalName = FindGlobalVariableName(*Fixture.Graph);
	if (GlobalName.IsEmpty())
	{
		AddInfo(TEXT("Not exercised: graph exposes no global variables to refuse"));
	}
	else
	{
		Script.SetGlobal("global_name", GlobalName);
	}
	if (!Script.Run(*this, TEXT("set_variable"), SetVariableScript))
	{
		return false;
	}
	float Written = 0.f;
	TestTrue(TEXT("float value written"), FloatVariable->GetValueFloat(Written) && FMath::IsNearlyEqual(Written, 2.25f, 1e-4f));
	return !HasAnyErrors();
}

#endif
