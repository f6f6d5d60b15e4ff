#include "Containers/StringConv.h"
#include "Engine/Blueprint.h"
#include "Engine/World.h"
#include "EditorAssetLibrary.h"
#include "Failure.h"
#include "HeadlessEditor.h"
#include "Lighthouse.h"
#include "NodeTexts.h"

#include <cstdio>
#include <cstring>

namespace
{
/** What the program was asked for. */
struct FRequest
{
	FString Project;
	FString TextsFolder;
};

FRequest ReadArguments(int NumWords, char** Words)
{
	const bool bHasTexts = NumWords == 4 && std::strcmp(Words[2], "--texts") == 0;
	if (NumWords != 2 && !bHasTexts)
	{
		Fail(TEXT("usage: SampleMaker PROJECT [--texts DIR]"));
	}
	return FRequest{FString(UTF8_TO_TCHAR(Words[1])), bHasTexts ? FString(UTF8_TO_TCHAR(Words[3])) : FString()};
}

void Save(UObject& Asset)
{
	if (!UEditorAssetLibrary::SaveLoadedAsset(&Asset, false))
	{
		Fail(FString::Printf(TEXT("%s cannot be saved"), *Asset.GetPathName()));
	}
	std::printf("%s\n", TCHAR_TO_UTF8(*Asset.GetPathName()));
}
}

/** Makes the content of the sample project in the project's folder, over what stands there. */
int main(int NumWords, char** Words)
{
	const FRequest Request = ReadArguments(NumWords, Words);
	FHeadlessEditorOptions Options;
	Options.EngineDir = FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR "/Engine"));
	Options.Project = Request.Project;
	const FString Failure = FHeadlessEditor::Start(Options);
	if (!Failure.IsEmpty())
	{
		Fail(Failure);
	}
	const FNodeTexts Texts(Request.TextsFolder);
	const FLighthouse Lighthouse = FLighthouse::Make(Texts);
	UWorld& Level = MakeLevel(Lighthouse, Texts);
	for (UBlueprint* const Blueprint : Lighthouse.GetAll())
	{
		Save(*Blueprint);
	}
	Save(Level);
	FHeadlessEditor::Stop();
	return 0;
}
