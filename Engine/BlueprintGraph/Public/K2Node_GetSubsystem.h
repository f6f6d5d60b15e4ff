#pragma once

#include "K2Node.h"
#include "Subsystems/Subsystem.h"
#include "Templates/SubclassOf.h"

#include "K2Node_GetSubsystem.generated.h"

/** Gets a subsystem of the game, the engine or the editor. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetSubsystem : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TSubclassOf<USubsystem> CustomClass;

	void Initialize(UClass* NodeClass) { CustomClass = NodeClass; }
	UEdGraphPin* GetResultPin() const { return FindPin(UEdGraphSchema_K2::PN_ReturnValue, EGPD_Output); }
	UEdGraphPin* GetClassPin() const { return FindPin(TEXT("Class"), EGPD_Input); }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

/** Gets a subsystem of the local player that a player controller belongs to. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetSubsystemFromPC : public UK2Node_GetSubsystem
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetPlayerControllerPin() const { return FindPin(TEXT("PlayerController"), EGPD_Input); }
	virtual void AllocateDefaultPins() override;
};

/** Gets a subsystem of the engine. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetEngineSubsystem : public UK2Node_GetSubsystem
{
	GENERATED_BODY()
};

/** Gets a subsystem of the editor. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetEditorSubsystem : public UK2Node_GetSubsystem
{
	GENERATED_BODY()
};
