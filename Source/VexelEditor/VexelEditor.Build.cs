using UnrealBuildTool;

public class VexelEditor : ModuleRules
{
	public VexelEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		CppStandard = CppStandardVersion.Cpp20;

		PublicDependencyModuleNames.AddRange(new string[] { "Core", "VexelCore" });
		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"CoreUObject",
			"Engine",
			"ImageWrapper",
			"Slate",
			"SlateCore",
			"UnrealEd"
		});
	}
}
