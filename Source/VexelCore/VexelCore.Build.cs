using System.IO;
using EpicGames.Core;
using UnrealBuildTool;

public class VexelCore : ModuleRules
{
	public VexelCore(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		CppStandard = CppStandardVersion.Cpp20;
		// The local HTTP server's library throws, inside itself.
		bEnableExceptions = true;

		PublicDependencyModuleNames.AddRange(new string[] { "Core", "Json" });
		PrivateDependencyModuleNames.AddRange(new string[] { "Slate", "SlateCore" });

		PublicSystemLibraries.AddRange(new string[] { "curl", "ssl", "crypto", "z", "cpp-httplib" });
		PublicSystemLibraries.AddRange(new string[] { "secret-1", "gio-2.0", "gobject-2.0", "glib-2.0" });
		// Debian names its folders of libraries without the vendor that the engine's name has.
		string Architecture = Target.Architecture.LinuxName.Replace("-unknown", "");
		PublicSystemIncludePaths.AddRange(new string[]
		{
			"/usr/include/libsecret-1",
			"/usr/include/glib-2.0",
			$"/usr/lib/{Architecture}/glib-2.0/include"
		});

		FileReference Plugin = new FileReference(Path.Combine(PluginDirectory, "Vexel.uplugin"));
		PrivateDefinitions.Add($"VEXEL_VERSION=\"{JsonObject.Read(Plugin).GetStringField("VersionName")}\"");
	}
}
