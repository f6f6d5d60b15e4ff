using UnrealBuildTool;

public class VexelClient : ModuleRules
{
	public VexelClient(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		CppStandard = CppStandardVersion.Cpp20;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"AssetRegistry",
			"BlueprintGraph",
			"Core",
			"CoreUObject",
			"DeveloperSettings",
			"EditorScriptingUtilities",
			"EditorSubsystem",
			"Engine",
			"Json",
			"Slate",
			"SlateCore",
			"ToolMenus",
			"UnrealEd",
			"VexelCore"
		});
		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"ImageWrapper",
			"Projects",
			"VexelEditor"
		});
	}
}
