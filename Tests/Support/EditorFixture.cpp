#include "EditorFixture.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformTime.h"
#include "HeadlessEditor.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{
constexpr float FrameSeconds = 1.0f / 60.0f;

TArray<FName>& GetWantedModules()
{
	static TArray<FName> Modules;
	return Modules;
}

/** The editor of this process and its temporary project. */
class FRunningEditor
{
public:
	explicit FRunningEditor(const TArray<FName>& Modules)
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-test-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		std::filesystem::create_directory(Directory / "Content");
		std::ofstream(Directory / "Test.uproject") << "{\n\t\"FileVersion\": 3,\n\t\"EngineAssociation\": \"5.7\"\n}\n";
		// Whoever runs the tests has secrets of their own, which no test may read, send or change.
		setenv("XDG_DATA_HOME", (Directory / "Data").c_str(), 1);
		setenv("VEXEL_SECRET_STORE", "file", 1);
		unsetenv("VEXEL_SENTRY_DSN");
		// Nobody listens there: a test that wants a service names its own.
		for (const char* const Name : {"VEXEL_API_URL", "VEXEL_APP_URL", "VEXEL_INSIGHTS_API_URL", "VEXEL_STATUS_URL"})
		{
			setenv(Name, "http://127.0.0.1:1", 1);
		}
		FHeadlessEditorOptions Options;
		Options.EngineDir = FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR "/Engine"));
		Options.Project = FString(UTF8_TO_TCHAR(Directory.c_str()));
		Options.Modules = Modules;
		Project = Options.Project;
		Failure = FHeadlessEditor::Start(Options);
	}

	~FRunningEditor()
	{
		if (Failure.IsEmpty())
		{
			FHeadlessEditor::Stop();
		}
		std::error_code Ignored;
		std::filesystem::remove_all(Directory, Ignored);
	}

	std::filesystem::path Directory;
	FString Project;
	FString Failure;
};

TUniquePtr<FRunningEditor> RunningEditor;

/** Stops the editor while the process is still whole, before statics are destroyed. */
class FStopEditor : public testing::Environment
{
public:
	virtual void TearDown() override { RunningEditor.Reset(); }
};

testing::Environment* const StopEditor = testing::AddGlobalTestEnvironment(new FStopEditor);
}

void FEditorTest::WantModule(FName Module)
{
	GetWantedModules().AddUnique(Module);
}

void FEditorTest::SetUp()
{
	if (!RunningEditor)
	{
		RunningEditor = MakeUnique<FRunningEditor>(GetWantedModules());
	}
	ASSERT_TRUE(RunningEditor->Failure.IsEmpty()) << TCHAR_TO_UTF8(*RunningEditor->Failure);
}

const FString& FEditorTest::GetProjectDir()
{
	return RunningEditor->Project;
}

void FEditorTest::Pump()
{
	FHeadlessEditor::Tick(0.0f);
}

void FEditorTest::AdvanceTime(float Seconds)
{
	while (Seconds > 0.0f)
	{
		const float Step = FMath::Min(Seconds, FrameSeconds);
		FHeadlessEditor::Tick(Step);
		Seconds -= Step;
	}
}

bool FEditorTest::PumpUntil(TFunctionRef<bool()> Condition, double TimeoutSeconds)
{
	const double Deadline = FPlatformTime::Seconds() + TimeoutSeconds;
	while (!Condition())
	{
		if (FPlatformTime::Seconds() > Deadline)
		{
			return false;
		}
		FHeadlessEditor::WaitAndTick(FrameSeconds);
	}
	return true;
}
