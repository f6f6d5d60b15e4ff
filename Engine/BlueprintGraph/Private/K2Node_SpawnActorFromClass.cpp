#include "K2Node_SpawnActorFromClass.h"

#include "GameFramework/Actor.h"
#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UClass* UK2Node_SpawnActorFromClass::GetClassPinBaseClass() const
{
	return AActor::StaticClass();
}

void UK2Node_SpawnActorFromClass::CreateOwnPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, TBaseStructure<FTransform>::Get(), TEXT("SpawnTransform"));
	UEdGraphPin* const Collision = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Byte,
		FindObject<UEnum>(nullptr, TEXT("/Script/Engine.ESpawnActorCollisionHandlingMethod")), TEXT("CollisionHandlingOverride"));
	Collision->DefaultValue = TEXT("Undefined");
	UEdGraphPin* const Scale = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Byte,
		FindObject<UEnum>(nullptr, TEXT("/Script/Engine.ESpawnActorScaleMethod")), TEXT("TransformScaleMethod"));
	Scale->DefaultValue = TEXT("MultiplyWithRoot");
	Scale->bAdvancedView = true;
	UEdGraphPin* const Owner = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, AActor::StaticClass(), TEXT("Owner"));
	Owner->bAdvancedView = true;
	HideAdvancedPins();
}

FText UK2Node_SpawnActorFromClass::GetBaseNodeTitle() const
{
	return LOCTEXT("SpawnActor_BaseTitle", "Spawn Actor from Class");
}

FText UK2Node_SpawnActorFromClass::GetNodeTitleFormat() const
{
	return LOCTEXT("SpawnActor", "SpawnActor {0}");
}

FText UK2Node_SpawnActorFromClass::GetNothingSelectedTitle() const
{
	return LOCTEXT("SpawnActor_Title_NONE", "SpawnActor NONE");
}

#undef LOCTEXT_NAMESPACE
