#include "Components/ActorComponent.h"
#include "Containers/StringConv.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "HeadlessEditor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <cstdio>

namespace
{
UBlueprint* Make(const TCHAR* Name, UClass* Parent)
{
	return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(*(FString(TEXT("/Game/")) + Name)), FName(Name), BPTYPE_Normal);
}

/** A component Light of 800, where its class has another intensity. */
bool AddLight(UBlueprint& Blueprint)
{
	UClass* const Class = FindObject<UClass>(nullptr, TEXT("/Script/Engine.PointLightComponent"));
	const FFloatProperty* const Intensity = Class ? FindFProperty<FFloatProperty>(Class, TEXT("Intensity")) : nullptr;
	if (!Intensity)
	{
		return false;
	}
	USCS_Node* const Node = Blueprint.SimpleConstructionScript->CreateNode(Class, TEXT("Light"));
	Blueprint.SimpleConstructionScript->AddNode(Node);
	Intensity->SetPropertyValue_InContainer(Node->ComponentTemplate, 800.0f);
	FKismetEditorUtilities::CompileBlueprint(&Blueprint);
	return true;
}

/** BP_Lamp, BP_StreetLamp that derives from it, and BP_OldStreetLamp that derives from that. */
bool MakeLamps()
{
	UBlueprint* const Lamp = Make(TEXT("BP_Lamp"), AActor::StaticClass());
	if (!AddLight(*Lamp))
	{
		return false;
	}
	UBlueprint* const StreetLamp = Make(TEXT("BP_StreetLamp"), Lamp->GeneratedClass.Get());
	UBlueprint* const OldStreetLamp = Make(TEXT("BP_OldStreetLamp"), StreetLamp->GeneratedClass.Get());
	bool bSaved = true;
	for (UBlueprint* const Blueprint : {Lamp, StreetLamp, OldStreetLamp})
	{
		bSaved = UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false) && bSaved;
	}
	return bSaved;
}
}

/** Adds the lamps to the project whose folder is the only argument. */
int main(int NumWords, char** Words)
{
	if (NumWords != 2)
	{
		std::fputs("usage: LampProject PROJECT\n", stderr);
		return 2;
	}
	FHeadlessEditorOptions Options;
	Options.EngineDir = FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR "/Engine"));
	Options.Project = FString(UTF8_TO_TCHAR(Words[1]));
	const FString Failure = FHeadlessEditor::Start(Options);
	if (!Failure.IsEmpty())
	{
		std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Failure));
		return 1;
	}
	const bool bMade = MakeLamps();
	FHeadlessEditor::Stop();
	return bMade ? 0 : 1;
}
