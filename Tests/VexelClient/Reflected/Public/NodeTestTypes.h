#pragma once

#include "BlueprintActionDatabaseRegistrar.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_ConvertAsset.h"
#include "K2Node_CustomEvent.h"
#include "Kismet2/CompilerResultsLog.h"
#include "LumTestTypes.h"

#include "NodeTestTypes.generated.h"

/** Shows what its node would be, but makes none. */
UCLASS(Transient)
class UNodeTestEmptySpawner : public UBlueprintNodeSpawner
{
	GENERATED_BODY()

public:
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override
	{
		return IsTemplateGraph(ParentGraph) ? Super::Invoke(ParentGraph, Bindings, Location) : nullptr;
	}
};

/**
 * A node of a module that the plug-in does not know, of a class below one that it knows by name, with a member that its id is made of. The
 * action for ULumWatch makes no node.
 */
UCLASS()
class UK2Node_ConvertAssetOfClass : public UK2Node_ConvertAsset
{
	GENERATED_BODY()

public:
	virtual void GetMenuActions(FBlueprintActionDatabaseRegistrar& ActionRegistrar) const override
	{
		if (ActionRegistrar.IsOpenForRegistration(GetClass()))
		{
			UNodeTestEmptySpawner* const Spawner = NewObject<UNodeTestEmptySpawner>();
			Spawner->NodeClass = GetClass();
			Spawner->CustomizeNodeDelegate = UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda([](UEdGraphNode* Node, bool)
				{ CastChecked<UK2Node_ConvertAssetOfClass>(Node)->TargetClass = ULumWatch::StaticClass(); });
			ActionRegistrar.AddBlueprintAction(GetClass(), Spawner);
		}
	}

	UPROPERTY()
	TObjectPtr<UClass> TargetClass = nullptr;
};

/** An event that has the compiler say something at each level of severity, and at two that there are not. */
UCLASS()
class UK2Node_SaysEverything : public UK2Node_CustomEvent
{
	GENERATED_BODY()

public:
	virtual void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override
	{
		for (const int32 Severity : Severities)
		{
			const FText Text = FText::FromString(FString::Printf(TEXT("of %d"), Severity));
			MessageLog.Messages.Add(FTokenizedMessage::Create(static_cast<EMessageSeverity::Type>(Severity), Text));
		}
	}

	TArray<int32> Severities;
};

/** Allows every link, and makes none. */
UCLASS()
class UNodeTestSchema : public UEdGraphSchema_K2
{
	GENERATED_BODY()

public:
	virtual bool TryCreateConnection(UEdGraphPin* A, UEdGraphPin* B) const override
	{
		// What begins a link marks what it touches, whatever becomes of it.
		A->Modify();
		return false;
	}
};
