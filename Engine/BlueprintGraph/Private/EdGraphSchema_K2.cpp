#include "EdGraphSchema_K2.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_EditablePinBase.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_Tunnel.h"
#include "Misc/OutputDeviceNull.h"
#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "KismetSchema"

namespace
{
/** Where the nodes that a new graph starts with stand. */
constexpr int32 TerminatorDistance = 640;

bool IsAllowedType(const UField* Type)
{
	for (const UField* Field = Type; Field; Field = Cast<UStruct>(Field) ? Cast<UStruct>(Field)->GetSuperStruct() : nullptr)
	{
		if (Field->GetBoolMetaData(FBlueprintMetadata::MD_AllowableBlueprintVariableType))
		{
			return true;
		}
		if (Field->GetBoolMetaData(FBlueprintMetadata::MD_NotAllowableBlueprintVariableType))
		{
			return false;
		}
	}
	return false;
}

template <class NodeType>
NodeType* AddTerminator(UEdGraph& Graph, const int32 PositionX, TFunctionRef<void(NodeType&)> Prepare)
{
	FGraphNodeCreator<NodeType> Creator(Graph);
	NodeType* const Node = Creator.CreateNode(false);
	Prepare(*Node);
	Node->NodePosX = PositionX;
	Creator.Finalize();
	return Node;
}

bool Contains(const TArray<TObjectPtr<UEdGraph>>& Graphs, const UEdGraph* Graph)
{
	return Graphs.ContainsByPredicate([Graph](const TObjectPtr<UEdGraph>& Item)
		{ return Item == Graph; });
}

/** Members of a struct that Blueprints see, in the order in which short text forms give them. */
TArray<const FProperty*> GetVisibleMembers(const UScriptStruct& Struct)
{
	TArray<const FProperty*> Members;
	for (TFieldIterator<FProperty> Iterator(&Struct); Iterator; ++Iterator)
	{
		if (Iterator->HasAnyPropertyFlags(CPF_BlueprintVisible | CPF_Edit))
		{
			Members.Add(*Iterator);
		}
	}
	return Members;
}

/** A struct's value, read from a pin's default. */
class FStructValue
{
public:
	FStructValue(const UScriptStruct& InStruct, FString Text)
		: Struct(InStruct)
	{
		Memory.SetNumZeroed(Struct.GetStructureSize() + Struct.GetMinAlignment());
		Data = Align(Memory.GetData(), Struct.GetMinAlignment());
		Struct.InitializeStruct(Data);
		if (!Text.IsEmpty() && !Text.StartsWith(TEXT("(")))
		{
			Text = NameNumbers(Text);
		}
		FOutputDeviceNull Errors;
		Struct.ImportText(*Text, Data, nullptr, PPF_SerializedAsImportText, &Errors, Struct.GetName());
	}
	~FStructValue() { Struct.DestroyStruct(Data); }

	FString GetMember(const FProperty& Member) const
	{
		FString Text;
		Member.ExportTextItem_InContainer(Text, Data, nullptr, nullptr, PPF_None);
		return Text;
	}
	void SetMember(const FProperty& Member, const FString& Text)
	{
		FOutputDeviceNull Errors;
		Member.ImportText_InContainer(*Text, Data, nullptr, PPF_None, &Errors);
	}
	FString ToText() const
	{
		FString Text;
		// These two have a short form, in the order of their members.
		if (&Struct == TBaseStructure<FVector>::Get() || &Struct == TBaseStructure<FRotator>::Get())
		{
			for (const FProperty* const Member : GetVisibleMembers(Struct))
			{
				Text += (Text.IsEmpty() ? TEXT("") : TEXT(",")) + GetMember(*Member);
			}
			return Text;
		}
		Struct.ExportText(Text, Data, nullptr, nullptr, PPF_None, nullptr);
		return Text;
	}

private:
	/** "1, 2, 3" of a vector pin, in the order of the members. A rotator's numbers are pitch, yaw and roll. */
	FString NameNumbers(const FString& Text) const
	{
		TArray<FString> Numbers;
		Text.ParseIntoArray(Numbers, TEXT(","), false);
		const TArray<const FProperty*> Members = GetVisibleMembers(Struct);
		FString Named = TEXT("(");
		for (int32 Index = 0; Index < FMath::Min(Numbers.Num(), Members.Num()); ++Index)
		{
			Named += FString::Printf(
				TEXT("%s%s=%s"), Index > 0 ? TEXT(",") : TEXT(""), *Members[Index]->GetName(), *Numbers[Index].TrimStartAndEnd());
		}
		return Named + TEXT(")");
	}

	const UScriptStruct& Struct;
	TArray<uint8> Memory;
	uint8* Data = nullptr;
};

/** What a split pin shows for one part of its struct. */
struct FSplitMember
{
	FName Name;
	FText DisplayName;
	FEdGraphPinType Type;
	/** The struct's member of the name; null for a part that the struct keeps in another form, as a transform its rotation. */
	const FProperty* Member = nullptr;
	/** The part's default where there is no member to read it from. */
	FString Default;
};

/** The library function that makes the struct of its parts, or takes it apart; null for a struct that has none. */
const UFunction* FindNativeFunction(const UScriptStruct& Struct, const EEdGraphPinDirection Direction)
{
	const FString* const Path = Struct.FindMetaData(
		Direction == EGPD_Input ? FBlueprintMetadata::MD_NativeMakeFunction : FBlueprintMetadata::MD_NativeBreakFunction);
	FString ClassPath;
	FString FunctionName;
	const bool bHasPath = Path && Path->Split(TEXT("."), &ClassPath, &FunctionName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	const UClass* const Library = bHasPath ? FindObject<UClass>(nullptr, *ClassPath) : nullptr;
	return Library ? Library->FindFunctionByName(*FunctionName) : nullptr;
}

/** The parts that a pin of the struct is split into: what its functions take or give, or else its members. */
TArray<FSplitMember> GetSplitMembers(const UScriptStruct& Struct, const EEdGraphPinDirection Direction)
{
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	TArray<FSplitMember> Members;
	const auto Add = [&](const FProperty& Property, const FProperty* Member)
	{
		FSplitMember Part;
		Part.Name = FName(*Property.GetAuthoredName());
		Part.DisplayName = Property.GetDisplayNameText();
		Part.Member = Member;
		if (Schema->ConvertPropertyToPinType(&Property, Part.Type))
		{
			Part.Type.bIsReference = false;
			Members.Add(Part);
		}
	};
	const UFunction* const Function = FindNativeFunction(Struct, Direction);
	for (TFieldIterator<FProperty> Parameter(Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
	{
		const bool bIsOutput = Parameter->HasAnyPropertyFlags(CPF_OutParm) &&
			!Parameter->HasAnyPropertyFlags(CPF_ReferenceParm | CPF_ReturnParm);
		const bool bIsInput = !Parameter->HasAnyPropertyFlags(CPF_OutParm | CPF_ReturnParm);
		if (Direction == EGPD_Input ? bIsInput : bIsOutput)
		{
			const int32 Before = Members.Num();
			Add(**Parameter, FindFProperty<FProperty>(&Struct, Parameter->GetFName()));
			if (Members.Num() > Before)
			{
				UEdGraphSchema_K2::FindFunctionParameterDefaultValue(Function, *Parameter, Members.Last().Default);
			}
		}
	}
	for (const FProperty* const Member : Function ? TArray<const FProperty*>() : GetVisibleMembers(Struct))
	{
		Add(*Member, Member);
	}
	return Members;
}

FName MakeSubPinName(const UEdGraphPin& Pin, const FSplitMember& Member)
{
	return FName(*FString::Printf(TEXT("%s_%s"), *Pin.PinName.ToString(), *Member.Name.ToString()));
}
}

// Functions

bool UEdGraphSchema_K2::CanUserKismetCallFunction(const UFunction* Function)
{
	return Function && Function->HasAllFunctionFlags(FUNC_BlueprintCallable) && !Function->HasAllFunctionFlags(FUNC_Delegate) &&
		!Function->GetBoolMetaData(FBlueprintMetadata::MD_BlueprintInternalUseOnly);
}

bool UEdGraphSchema_K2::CanKismetOverrideFunction(const UFunction* Function)
{
	return Function && Function->HasAllFunctionFlags(FUNC_BlueprintEvent) && !Function->HasAllFunctionFlags(FUNC_Delegate) &&
		!Function->GetBoolMetaData(FBlueprintMetadata::MD_BlueprintInternalUseOnly) && !Function->HasMetaData(TEXT("DeprecatedFunction"));
}

bool UEdGraphSchema_K2::HasFunctionAnyOutputParameter(const UFunction* Function)
{
	for (TFieldIterator<FProperty> Parameter(Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
	{
		const bool bIsInput = Parameter->HasAnyPropertyFlags(CPF_ReferenceParm) ||
			!Parameter->HasAnyPropertyFlags(CPF_OutParm | CPF_ReturnParm);
		if (!bIsInput)
		{
			return true;
		}
	}
	return false;
}

bool UEdGraphSchema_K2::FunctionCanBePlacedAsEvent(const UFunction* InFunction)
{
	return CanKismetOverrideFunction(InFunction) && !InFunction->HasAnyFunctionFlags(FUNC_Static | FUNC_Const) &&
		!HasFunctionAnyOutputParameter(InFunction) && !InFunction->HasMetaData(FBlueprintMetadata::MD_ForceAsFunction);
}

bool UEdGraphSchema_K2::IsAllowableBlueprintVariableType(const UEnum* InEnum)
{
	return InEnum && (InEnum->GetClass() != UEnum::StaticClass() || IsAllowedType(InEnum));
}

bool UEdGraphSchema_K2::IsAllowableBlueprintVariableType(const UClass* InClass, bool bAssumeBlueprintType)
{
	return InClass &&
		(InClass == UObject::StaticClass() || bAssumeBlueprintType || InClass->HasAnyClassFlags(CLASS_CompiledFromBlueprint) ||
			IsAllowedType(InClass));
}

bool UEdGraphSchema_K2::IsAllowableBlueprintVariableType(const UScriptStruct* InStruct, bool bForInternalUse)
{
	const bool bIsInternal = InStruct && InStruct->GetBoolMetaData(TEXT("BlueprintInternalUseOnly"));
	return InStruct && (InStruct->GetClass() != UScriptStruct::StaticClass() || IsAllowedType(InStruct)) &&
		(bForInternalUse || !bIsInternal);
}

FText UEdGraphSchema_K2::GetFriendlySignatureName(const UFunction* Function)
{
	return Function ? Function->GetDisplayNameText() : FText::GetEmpty();
}

// Graphs

EGraphType UEdGraphSchema_K2::GetGraphType(const UEdGraph* TestEdGraph) const
{
	for (const UEdGraph* Graph = TestEdGraph; Graph; Graph = Graph->GetOuter() ? Graph->GetOuter()->GetTypedOuter<UEdGraph>() : nullptr)
	{
		const UBlueprint* const Blueprint = Cast<UBlueprint>(Graph->GetOuter());
		if (!Blueprint)
		{
			// A collapsed graph is of the kind of the graph that it was taken from; its outer may be that graph itself.
			if (const UEdGraph* const Parent = Cast<UEdGraph>(Graph->GetOuter()))
			{
				return GetGraphType(Parent);
			}
			continue;
		}
		if (Contains(Blueprint->UbergraphPages, Graph) || Contains(Blueprint->EventGraphs, Graph))
		{
			return GT_Ubergraph;
		}
		if (Contains(Blueprint->MacroGraphs, Graph))
		{
			return GT_Macro;
		}
	}
	return GT_Function;
}

bool UEdGraphSchema_K2::IsConstructionScript(const UEdGraph* TestEdGraph)
{
	return TestEdGraph && TestEdGraph->GetFName() == FN_UserConstructionScript;
}

UEdGraph* UEdGraphSchema_K2::GetFunctionGraph(const UBlueprint* Blueprint, FName FunctionName)
{
	for (UEdGraph* const Graph : Blueprint->FunctionGraphs)
	{
		if (Graph && Graph->GetFName() == FunctionName)
		{
			return Graph;
		}
	}
	return nullptr;
}

void UEdGraphSchema_K2::GetGraphDisplayInformation(const UEdGraph& Graph, FGraphDisplayInfo& DisplayInfo) const
{
	const bool bIsConstructionScript = IsConstructionScript(&Graph);
	DisplayInfo.PlainName = bIsConstructionScript ? LOCTEXT("GraphDisplayName_ConstructionScript", "ConstructionScript")
												  : FText::FromString(Graph.GetName());
	DisplayInfo.DisplayName = bIsConstructionScript ? LOCTEXT("GraphDisplayTitle_ConstructionScript", "Construction Script")
													: FText::FromString(FName::NameToDisplayString(Graph.GetName(), false));
	TArray<UK2Node_FunctionEntry*> Entries;
	Graph.GetNodesOfClass(Entries);
	if (Entries.Num() > 0)
	{
		DisplayInfo.Tooltip = Entries[0]->MetaData.ToolTip;
	}
}

UEdGraphNode* UEdGraphSchema_K2::CreateSubstituteNode(
	UEdGraphNode* Node, const UEdGraph* Graph, FObjectInstancingGraph* InstanceGraph, TSet<FName>& InOutExtraNames) const
{
	const UK2Node_Event* const Event = Cast<UK2Node_Event>(Node);
	const UBlueprint* const Blueprint = Graph->GetTypedOuter<UBlueprint>();
	if (!Event || !Blueprint || GetGraphType(Graph) != GT_Ubergraph)
	{
		return nullptr;
	}
	const UClass* const Class = Blueprint->SkeletonGeneratedClass.Get();
	const FString BaseName = Event->GetFunctionName().ToString();
	FName Name(*BaseName);
	for (int32 Number = 0;
		 InOutExtraNames.Contains(Name) || (Class && (Class->FindFunctionByName(Name) || Class->FindPropertyByName(Name))); ++Number)
	{
		Name = FName(*FString::Printf(TEXT("%s_%d"), *BaseName, Number));
	}
	InOutExtraNames.Add(Name);
	UK2Node_CustomEvent* const Substitute = CastChecked<UK2Node_CustomEvent>(
		Node->GetGraph()->CreateNode(UK2Node_CustomEvent::StaticClass()));
	Substitute->CustomFunctionName = Name;
	Substitute->NodeGuid = Node->NodeGuid;
	Substitute->NodePosX = Node->NodePosX;
	Substitute->NodePosY = Node->NodePosY;
	Substitute->NodeComment = Node->NodeComment;
	Substitute->AllocateDefaultPins();
	for (UEdGraphPin* const Old : TArray<UEdGraphPin*>(Node->Pins))
	{
		UEdGraphPin* Pin = Substitute->FindPin(Old->PinName, Old->Direction);
		if (!Pin && !Old->ParentPin && !Old->bOrphanedPin)
		{
			Pin = Substitute->CreateUserDefinedPin(Old->PinName, Old->PinType, EGPD_Output, false);
		}
		if (Pin && Old->SubPins.Num() > 0)
		{
			SplitPin(Pin, false);
		}
		if (Pin)
		{
			Pin->MovePersistentDataFromOldPin(*Old);
		}
	}
	return Substitute;
}

void UEdGraphSchema_K2::CreateDefaultNodesForGraph(UEdGraph& Graph) const
{
}

void UEdGraphSchema_K2::CreateTerminators(UEdGraph& Graph, const UFunction* Function, UClass* Class) const
{
	// An override takes its pins from the function; a new function gets pins of its own after the signature.
	const UFunction* const OwnSignature = Class ? nullptr : Function;
	UK2Node_FunctionEntry* const Entry = AddTerminator<UK2Node_FunctionEntry>(Graph, 0,
		[&](UK2Node_FunctionEntry& Node)
		{
			Node.FunctionReference.SetExternalMember(Graph.GetFName(), Class);
		});
	if (OwnSignature)
	{
		Entry->CreateUserDefinedPinsForFunctionEntryExit(OwnSignature, true);
	}
	if (!Function || !HasFunctionAnyOutputParameter(Function))
	{
		return;
	}
	UK2Node_FunctionResult* const Result = AddTerminator<UK2Node_FunctionResult>(
		Graph, TerminatorDistance, [&](UK2Node_FunctionResult& Node)
		{ Node.FunctionReference.SetExternalMember(Graph.GetFName(), Class); });
	if (OwnSignature)
	{
		Result->CreateUserDefinedPinsForFunctionEntryExit(OwnSignature, false);
	}
	UEdGraphPin* const Then = Entry->GetThenPin();
	UEdGraphPin* const Execute = Result->GetExecPin();
	if (Then && Execute)
	{
		Then->MakeLinkTo(Execute);
	}
}

void UEdGraphSchema_K2::CreateFunctionGraphTerminators(UEdGraph& Graph, UClass* Class) const
{
	CreateTerminators(Graph, Class ? Class->FindFunctionByName(Graph.GetFName()) : nullptr, Class);
}

void UEdGraphSchema_K2::CreateFunctionGraphTerminators(UEdGraph& Graph, const UFunction* FunctionSignature) const
{
	CreateTerminators(Graph, FunctionSignature, nullptr);
}

void UEdGraphSchema_K2::CreateMacroGraphTerminators(UEdGraph& Graph, UClass* Class) const
{
	const UFunction* const Signature = Class ? Class->FindFunctionByName(Graph.GetFName()) : nullptr;
	UK2Node_Tunnel* const Entry = AddTerminator<UK2Node_Tunnel>(Graph, 0, [](UK2Node_Tunnel& Node)
		{ Node.bCanHaveOutputs = true; });
	UK2Node_Tunnel* const Exit = AddTerminator<UK2Node_Tunnel>(Graph, TerminatorDistance, [](UK2Node_Tunnel& Node)
		{ Node.bCanHaveInputs = true; });
	if (Signature)
	{
		Entry->CreateUserDefinedPinsForFunctionEntryExit(Signature, true);
		Exit->CreateUserDefinedPinsForFunctionEntryExit(Signature, false);
	}
}

void UEdGraphSchema_K2::AddExtraFunctionFlags(const UEdGraph* CurrentGraph, int32 ExtraFlags) const
{
	TArray<UK2Node_FunctionEntry*> Entries;
	CurrentGraph->GetNodesOfClass(Entries);
	for (UK2Node_FunctionEntry* const Entry : Entries)
	{
		Entry->Modify();
		Entry->AddExtraFlags(ExtraFlags);
	}
}

void UEdGraphSchema_K2::MarkFunctionEntryAsEditable(const UEdGraph* CurrentGraph, bool bNewEditable) const
{
	TArray<UK2Node_EditablePinBase*> Terminators;
	CurrentGraph->GetNodesOfClass(Terminators);
	for (UK2Node_EditablePinBase* const Terminator : Terminators)
	{
		Terminator->Modify();
		Terminator->bIsEditable = bNewEditable;
	}
}

// Split pins

bool UEdGraphSchema_K2::CanSplitStructPin(const UEdGraphPin& Pin) const
{
	const UScriptStruct* const Struct = Pin.PinType.PinCategory == PC_Struct && !Pin.PinType.IsContainer()
		? Cast<UScriptStruct>(Pin.PinType.PinSubCategoryObject.Get())
		: nullptr;
	return Struct && Pin.SubPins.Num() == 0 && !Pin.bNotConnectable && Pin.LinkedTo.Num() == 0 &&
		GetSplitMembers(*Struct, Pin.Direction).Num() > 0;
}

void UEdGraphSchema_K2::SplitPin(UEdGraphPin* Pin, bool bNotify) const
{
	const UScriptStruct* const Struct = Pin->PinType.PinCategory == PC_Struct ? Cast<UScriptStruct>(Pin->PinType.PinSubCategoryObject.Get())
																			  : nullptr;
	// A link of the whole value would go on out of sight, against the members' own.
	if (!Struct || Pin->SubPins.Num() > 0 || Pin->LinkedTo.Num() > 0)
	{
		return;
	}
	UEdGraphNode* const Node = Pin->GetOwningNode();
	Node->Modify();
	Pin->Modify();
	const FStructValue Value(*Struct, Pin->DefaultValue);
	const FStructValue Autogenerated(*Struct, Pin->AutogeneratedDefaultValue);
	int32 Index = Node->GetPinIndex(Pin);
	for (const FSplitMember& Member : GetSplitMembers(*Struct, Pin->Direction))
	{
		FEdGraphPinType Type = Member.Type;
		Type.bIsConst = Pin->PinType.bIsConst;
		UEdGraphPin* const SubPin = Node->CreatePin(Pin->Direction, Type, MakeSubPinName(*Pin, Member), ++Index);
		SubPin->PinFriendlyName = FText::Format(
			LOCTEXT("SplitPinFriendlyNameFormat", "{0} {1}"), GetPinDisplayName(Pin), Member.DisplayName);
		SubPin->bDefaultValueIsIgnored = Pin->bDefaultValueIsIgnored;
		SubPin->ParentPin = Pin;
		if (Pin->Direction == EGPD_Input && Member.Member)
		{
			SetPinAutogeneratedDefaultValue(SubPin, Autogenerated.GetMember(*Member.Member));
			GetPinDefaultValuesFromString(
				Type, Node, Value.GetMember(*Member.Member), SubPin->DefaultValue, SubPin->DefaultObject, SubPin->DefaultTextValue);
		}
		else if (Pin->Direction == EGPD_Input)
		{
			SetPinAutogeneratedDefaultValueBasedOnType(SubPin);
			if (!Member.Default.IsEmpty())
			{
				SetPinAutogeneratedDefaultValue(SubPin, Member.Default);
			}
		}
		Pin->SubPins.Add(SubPin);
	}
	Pin->bHidden = true;
	if (bNotify)
	{
		Node->GetGraph()->NotifyNodeChanged(Node);
	}
}

void UEdGraphSchema_K2::RecombinePin(UEdGraphPin* Pin) const
{
	UEdGraphPin* const Parent = Pin->SubPins.Num() > 0 || !Pin->ParentPin ? Pin : Pin->ParentPin;
	const UScriptStruct* const Struct = Cast<UScriptStruct>(Parent->PinType.PinSubCategoryObject.Get());
	if (Parent->SubPins.Num() == 0 || !Struct)
	{
		return;
	}
	UEdGraphNode* const Node = Parent->GetOwningNode();
	Node->Modify();
	Parent->Modify();
	FStructValue Value(*Struct, Parent->AutogeneratedDefaultValue);
	const TArray<UEdGraphPin*> SubPins = Parent->SubPins;
	const TArray<FSplitMember> Members = GetSplitMembers(*Struct, Parent->Direction);
	bool bHasValue = false;
	for (UEdGraphPin* const SubPin : SubPins)
	{
		if (SubPin->SubPins.Num() > 0)
		{
			RecombinePin(SubPin);
		}
		const FSplitMember* const Part = Members.FindByPredicate([Parent, SubPin](const FSplitMember& Member)
			{ return SubPin->PinName == MakeSubPinName(*Parent, Member); });
		if (Part && Part->Member)
		{
			Value.SetMember(*Part->Member, SubPin->GetDefaultAsString());
			bHasValue = true;
		}
	}
	Parent->SubPins.Empty();
	for (UEdGraphPin* const SubPin : SubPins)
	{
		SubPin->ParentPin = nullptr;
		Node->RemovePin(SubPin);
	}
	Parent->bHidden = false;
	if (Parent->Direction == EGPD_Input && bHasValue)
	{
		Parent->DefaultValue = Value.ToText();
	}
	Node->GetGraph()->NotifyNodeChanged(Node);
}

// Names

FText UEdGraphSchema_K2::GetPinDisplayName(const UEdGraphPin* Pin) const
{
	const UK2Node* const Node = Cast<UK2Node>(Pin->GetOwningNodeUnchecked());
	const FText Override = Node ? Node->GetPinNameOverride(*Pin) : FText::GetEmpty();
	if (!Override.IsEmpty())
	{
		return Override;
	}
	if (!Pin->PinFriendlyName.IsEmpty() && Pin->bAllowFriendlyName)
	{
		return Pin->PinFriendlyName;
	}
	// The usual ways in and out of a node are arrows without a word.
	if (IsExecPin(*Pin) && (Pin->PinName == PN_Execute || Pin->PinName == PN_Then))
	{
		return FText::GetEmpty();
	}
	if (Pin->PinName.IsNone())
	{
		return FText::GetEmpty();
	}
	return FText::FromString(FName::NameToDisplayString(Pin->PinName.ToString(), Pin->PinType.PinCategory == PC_Boolean));
}

bool UEdGraphSchema_K2::IsSelfPin(const UEdGraphPin& Pin) const
{
	return Pin.PinName == PN_Self;
}

#undef LOCTEXT_NAMESPACE
