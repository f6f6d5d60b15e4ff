#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "Misc/Paths.h"
#include "PackageInspector.h"
#include "UObject/LinkerLoad.h"

int32 RunInspectCommand(const FArguments& Arguments)
{
	if (Arguments.GetPositional().IsEmpty())
	{
		FConsole::WriteError(TEXT("inspect: which file?"));
		return ExitStatus::WrongUsage;
	}
	const FString& File = Arguments.GetPositional()[0];
	if (!FPaths::FileExists(File))
	{
		FConsole::WriteError(FString::Printf(TEXT("the file '%s' cannot be read"), *File));
		return ExitStatus::Failed;
	}
	FString Failure;
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(File, nullptr, Failure);
	if (!Linker)
	{
		FConsole::WriteError(Failure);
		return ExitStatus::Failed;
	}
	TArray<FString> Errors;
	const TSharedRef<FJsonObject> Document = InspectPackage(*Linker, Errors);
	Document->SetStringField(TEXT("file"), File);
	WriteJson(Document);
	for (const FString& Error : Errors)
	{
		FConsole::WriteError(FString::Printf(TEXT("%s: %s"), *File, *Error));
	}
	return Errors.IsEmpty() ? ExitStatus::Done : ExitStatus::Failed;
}
