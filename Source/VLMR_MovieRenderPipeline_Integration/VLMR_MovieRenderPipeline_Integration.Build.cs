using UnrealBuildTool;

public class VLMR_MovieRenderPipeline_Integration : ModuleRules
{
	public VLMR_MovieRenderPipeline_Integration(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Engine",
			"CinematicCamera",
			"UnrealEd",
			"AssetRegistry",
			"LevelSequence",
			"MovieRenderPipelineCore",
			"MovieRenderPipelineSettings",
			"MovieRenderPipelineEditor",
			"VelmireAI",
		});
	}
}
