#include "ModuleDescriptor.h"

#include "Descriptors.h"

namespace
{
const TCHAR* const HostTypeNames[] = {TEXT("Runtime"), TEXT("RuntimeNoCommandlet"), TEXT("RuntimeAndProgram"), TEXT("CookedOnly"),
	TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"), TEXT("Editor"), TEXT("EditorNoCommandlet"), TEXT("EditorAndProgram"),
	TEXT("Program"), TEXT("ServerOnly"), TEXT("ClientOnly"), TEXT("ClientOnlyNoCommandlet")};
static_assert(UE_ARRAY_COUNT(HostTypeNames) == EHostType::Max);

const TCHAR* const LoadingPhaseNames[] = {TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"),
	TEXT("PreEarlyLoadingScreen"), TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"), TEXT("PostDefault"), TEXT("PostEngineInit"),
	TEXT("None")};
static_assert(UE_ARRAY_COUNT(LoadingPhaseNames) == ELoadingPhase::Max);
}

EHostType::Type EHostType::FromString(const TCHAR* Text)
{
	return EHostType::Type(Descriptors::FindName(HostTypeNames, Text));
}

const TCHAR* EHostType::ToString(EHostType::Type Value)
{
	return Value >= 0 && Value < EHostType::Max ? HostTypeNames[Value] : TEXT("");
}

ELoadingPhase::Type ELoadingPhase::FromString(const TCHAR* Text)
{
	return ELoadingPhase::Type(Descriptors::FindName(LoadingPhaseNames, Text));
}

const TCHAR* ELoadingPhase::ToString(ELoadingPhase::Type Value)
{
	return Value >= 0 && Value < ELoadingPhase::Max ? LoadingPhaseNames[Value] : TEXT("");
}

bool FModuleDescriptor::Read(const FJsonObject& Object, FText& OutFailReason)
{
	FString NameText;
	if (!Object.TryGetStringField(TEXT("Name"), NameText) || NameText.IsEmpty() || NameText.Len() >= NAME_SIZE)
	{
		OutFailReason = FText::FromString(TEXT("it has no 'Name'"));
		return false;
	}
	Name = FName(*NameText);
	FString Word;
	if (Object.TryGetStringField(TEXT("Type"), Word))
	{
		Type = EHostType::FromString(*Word);
		if (Type == EHostType::Max)
		{
			OutFailReason = FText::FromString(FString::Printf(TEXT("module '%s' has the unknown type '%s'"), *NameText, *Word));
			return false;
		}
	}
	if (Object.TryGetStringField(TEXT("LoadingPhase"), Word))
	{
		LoadingPhase = ELoadingPhase::FromString(*Word);
		if (LoadingPhase == ELoadingPhase::Max)
		{
			OutFailReason = FText::FromString(FString::Printf(TEXT("module '%s' has the unknown loading phase '%s'"), *NameText, *Word));
			return false;
		}
	}
	Object.TryGetStringArrayField(TEXT("AdditionalDependencies"), AdditionalDependencies);
	return true;
}

bool FModuleDescriptor::ReadArray(const FJsonObject& Object, const TCHAR* Name, TArray<FModuleDescriptor>& OutModules, FText& OutFailReason)
{
	return Descriptors::ReadArray(Object, Name, OutModules, OutFailReason);
}
