#pragma once

#include "BlueprintEditTest.h"
#include "Components/SceneComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "UObject/UObjectHash.h"

/** A parent Blueprint with a component Lamp at (10, 20, 30) of its root, and a child Blueprint. */
class FInheritedComponentTest : public FBlueprintEditTest
{
protected:
	virtual void SetUp() override
	{
		FBlueprintEditTest::SetUp();
		AddComponent(Blueprint, TEXT("Body"));
		Lamp = AddComponent(Blueprint, TEXT("Lamp"));
		SetLocation(Lamp->ComponentTemplate, FVector(10, 20, 30));
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
		GEditor->ResetTransaction(Title(TEXT("Test")));
	}

	static USCS_Node* AddComponent(UBlueprint* To, const TCHAR* Name, UClass* Class = USceneComponent::StaticClass())
	{
		USCS_Node* const Node = To->SimpleConstructionScript->CreateNode(Class, Name);
		To->SimpleConstructionScript->AddNode(Node);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(To);
		return Node;
	}

	static USceneComponent* Override(UBlueprint* In, const USCS_Node* Node)
	{
		UInheritableComponentHandler* const Handler = In->GetInheritableComponentHandler(true);
		return Cast<USceneComponent>(Handler->CreateOverridenComponentTemplate(FComponentKey(Node)));
	}

	static UBlueprintGeneratedClass* ClassOf(const UBlueprint* Of) { return Cast<UBlueprintGeneratedClass>(Of->GeneratedClass.Get()); }
	/** Where actors of the Blueprint have the component. */
	static FVector Locate(const UBlueprint* Of, const USCS_Node* Node)
	{
		return CastChecked<USceneComponent>(Node->GetActualComponentTemplate(ClassOf(Of)))->GetRelativeLocation();
	}
	static int32 NumOverrides(const UBlueprint* Of)
	{
		TArray<UActorComponent*> Templates;
		if (Of->InheritableComponentHandler)
		{
			Of->InheritableComponentHandler->GetAllTemplates(Templates);
		}
		return Templates.Num();
	}

	static void SetLocation(UActorComponent* Component, const FVector& Location)
	{
		Component->Modify();
		CastChecked<USceneComponent>(Component)->SetRelativeLocation(Location);
	}

	USCS_Node* Lamp = nullptr;
	UBlueprint* Child = nullptr;
};
