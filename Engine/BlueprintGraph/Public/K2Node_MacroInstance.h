#pragma once

#include "EdGraph/EdGraph.h"
#include "K2Node_Tunnel.h"

#include "K2Node_MacroInstance.generated.h"

/** A use of a macro: its graph takes the place of the node when the Blueprint is compiled. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MacroInstance : public UK2Node_Tunnel
{
	GENERATED_BODY()

public:
	/** The type that the macro's wildcard pins have taken here. */
	UPROPERTY()
	FEdGraphPinType ResolvedWildcardType;

	UK2Node_MacroInstance(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UEdGraph* GetMacroGraph() const { return MacroGraphReference.GetGraph(); }
	UBlueprint* GetSourceBlueprint() const { return MacroGraphReference.GetBlueprint(); }
	void SetMacroGraph(UEdGraph* Graph) { MacroGraphReference.SetGraph(Graph); }
	/** The entry node of a macro's graph, which carries what the user declared of the macro; null without one. */
	static const UK2Node_Tunnel* FindTunnel(const UEdGraph* Graph, bool bEntry);
	virtual bool DrawNodeAsEntry() const override { return false; }
	virtual bool DrawNodeAsExit() const override { return false; }
	virtual bool CanUserDeleteNode() const override { return true; }
	virtual bool CanDuplicateNode() const override { return true; }
	/** Not in the macro itself. */
	virtual bool CanPasteHere(const UEdGraph* TargetGraph) const override;
	/** A macro of another Blueprint that is no library cannot be used: the copy has none, whatever bears its name here. */
	virtual void PostPasteNode() override;
	/** A macro is for its own Blueprint and the children of it; a library's is for everyone of the library's parent class. */
	static bool CanUseMacroOf(const UBlueprint& Source, const UBlueprint& User);
	virtual bool IsNodePure() const override;
	virtual FText GetCompactNodeTitle() const override;
	virtual bool ShouldDrawCompact() const override;
	virtual void AllocateDefaultPins() override;
	virtual bool HasKnownDefinition() const override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetKeywords() const override;
	virtual FText GetMenuCategory() const override;
	virtual UEdGraph* GetExpansion() const override { return GetMacroGraph(); }

protected:
	virtual FEdGraphPinType GetOuterType(const UEdGraphPin& Inner) const override;

private:
	UPROPERTY()
	FGraphReference MacroGraphReference;

	/** The pins that the macro leaves open. */
	TArray<UEdGraphPin*> GetWildcardPins() const;
};
