#include "Tools/Blueprint/VexelObjectEditRequest.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/Compound/LumGraphCompound.h"
#include "Lum/Compound/LumNodeCompound.h"
#include "Lum/LumErrors.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "VexelLog.h"

#include "Algo/AllOf.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"

namespace
{
template <typename EnumType>
struct TEditWord
{
	const TCHAR* Word;
	EnumType Value;
};

const TEditWord<EVexelEditOperation> OperationWords[] = {
	{TEXT("update"), EVexelEditOperation::Update},
	{TEXT("insert"), EVexelEditOperation::Insert},
	{TEXT("remove"), EVexelEditOperation::Remove},
	{TEXT("add_variable"), EVexelEditOperation::AddVariable},
	{TEXT("remove_variable"), EVexelEditOperation::RemoveVariable},
	{TEXT("edit_variable"), EVexelEditOperation::EditVariable},
	{TEXT("add_pin"), EVexelEditOperation::AddPin},
	{TEXT("remove_pin"), EVexelEditOperation::RemovePin},
	{TEXT("edit_pin"), EVexelEditOperation::EditPin},
};

const TEditWord<EVexelEditTarget> TargetWords[] = {
	{TEXT("blueprint"), EVexelEditTarget::Blueprint},
	{TEXT("graph"), EVexelEditTarget::Graph},
	{TEXT("node"), EVexelEditTarget::Node},
};

/** What is no word of a table. */
const TCHAR* const UnknownWord = TEXT("unknown");

FString ReadText(const FJsonObject& Object, const TCHAR* Key)
{
	FString Text;
	Object.TryGetStringField(Key, Text);
	return Text;
}

template <typename EnumType, size_t NumWords>
EnumType FindByWord(const FString& Text, const TEditWord<EnumType> (&Words)[NumWords])
{
	for (const TEditWord<EnumType>& Word : Words)
	{
		if (Text.Equals(Word.Word, ESearchCase::CaseSensitive))
		{
			return Word.Value;
		}
	}
	return EnumType::Unknown;
}

template <typename EnumType, size_t NumWords>
const TCHAR* FindWord(EnumType Value, const TEditWord<EnumType> (&Words)[NumWords])
{
	for (const TEditWord<EnumType>& Word : Words)
	{
		if (Word.Value == Value)
		{
			return Word.Word;
		}
	}
	return UnknownWord;
}

template <typename EnumType, size_t NumWords>
FString ListWords(const TEditWord<EnumType> (&Words)[NumWords])
{
	return FString::JoinBy(Words, TEXT(", "), [](const TEditWord<EnumType>& Word)
		{ return FString::Printf(TEXT("'%s'"), Word.Word); });
}

TSharedPtr<FJsonValue> ReadValue(const FJsonObject& Object)
{
	const TSharedPtr<FJsonValue> Value = Object.TryGetField(TEXT("value"));
	return Value && !Value->IsNull() ? Value : nullptr;
}

/** Unset unless the text is a whole number that an index can be. */
TOptional<int32> ParseIndex(const FString& Text)
{
	constexpr int32 MaxDigits = 10;
	const FString Digits = Text.RightChop(Text.StartsWith(TEXT("-")) ? 1 : 0);
	const bool bIsWhole = !Digits.IsEmpty() && Digits.Len() <= MaxDigits && Algo::AllOf(Digits, &FChar::IsDigit);
	const int64 Number = bIsWhole ? FCString::Atoi64(*Text) : MAX_int64;
	return Number >= MIN_int32 && Number <= MAX_int32 ? TOptional<int32>(static_cast<int32>(Number)) : TOptional<int32>();
}

/** A number, or the text of one; the index that stands for none otherwise. */
int32 ReadIndex(const FJsonObject& Object)
{
	const FString Text = ReadText(Object, TEXT("index"));
	const TOptional<int32> Index = ParseIndex(Text);
	if (!Index && !Text.IsEmpty())
	{
		VEXEL_LOG(Warning, "Invalid index value '%s' in edit request", *Text.Left(NAME_SIZE));
	}
	return Index.Get(INDEX_NONE);
}

FEditRequest::FTargetInfo ReadTarget(const FJsonObject& Request)
{
	FEditRequest::FTargetInfo Target;
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (Request.TryGetObjectField(TEXT("target"), Object))
	{
		Target.Type = FindByWord(ReadText(**Object, TEXT("target_type")), TargetWords);
		Target.GraphId = ReadText(**Object, TEXT("graph"));
		Target.NodeId = ReadText(**Object, TEXT("node"));
	}
	return Target;
}

/** Unset for an operation that is not known. */
TOptional<FEditRequest::FOperation> ReadOperation(const FJsonObject& Object)
{
	const EVexelEditOperation Type = VexelEditWords::FindOperation(ReadText(Object, TEXT("operation")));
	if (Type == EVexelEditOperation::Unknown)
	{
		return {};
	}
	if (Type < EVexelEditOperation::AddVariable)
	{
		return FEditRequest::FOperation(TInPlaceType<FEditRequestOperationOnProp>(),
			FEditRequestOperationOnProp{Type, ReadText(Object, TEXT("scope")), ReadText(Object, TEXT("prop_path")), ReadIndex(Object), ReadValue(Object)});
	}
	return FEditRequest::FOperation(TInPlaceType<FEditRequestOperationOnVar>(),
		FEditRequestOperationOnVar{Type, ReadText(Object, TEXT("scope")), ReadText(Object, TEXT("name")), ReadValue(Object)});
}

TVexelExpected<UEdGraph*> ResolveGraph(const FVexelBlueprintRequestHelper& Blueprint, const FString& GraphId)
{
	UEdGraph* const Graph = Blueprint.FindGraph(GraphId);
	if (!Graph)
	{
		return VEXEL_ERROR(FLumError_Traverse, "Graph '%s' not found", *GraphId);
	}
	return Graph;
}

TVexelExpected<UEdGraphNode*> ResolveNode(const FVexelBlueprintRequestHelper& Blueprint, const UEdGraph& Graph, const FString& NodeId)
{
	UEdGraphNode* Node = nullptr;
	if (!Blueprint.GetMapping().ResolveNodeInGraph(TVexelNodeId(NodeId), Graph, Node))
	{
		return VEXEL_ERROR(FLumError_Traverse, "Node '%s' not found", *NodeId);
	}
	return Node;
}

TVexelExpected<TSharedRef<ILumCompound>> Resolve(const FVexelBlueprintRequestHelper& Blueprint, const FEditRequest::FTargetInfo& Target)
{
	if (Target.Type == EVexelEditTarget::Blueprint)
	{
		return ILumCompound::Create(Blueprint.GetBlueprint());
	}
	if (Target.Type == EVexelEditTarget::Unknown)
	{
		return VEXEL_ERROR(FLumError_Traverse, "Invalid target type '%s' for edit request", UnknownWord);
	}
	VEXEL_TRY(UEdGraph* const Graph, ResolveGraph(Blueprint, Target.GraphId), "while resolving graph '%s' in blueprint '%s'", *Target.GraphId,
		*Blueprint.GetBlueprint().GetPathName());
	if (Target.Type == EVexelEditTarget::Graph)
	{
		return StaticCastSharedRef<ILumCompound>(MakeShared<FLumGraphCompound>(*Graph));
	}
	VEXEL_TRY(UEdGraphNode* const Node, ResolveNode(Blueprint, *Graph, Target.NodeId), "while resolving node '%s' in graph '%s'", *Target.NodeId,
		*Target.GraphId);
	return StaticCastSharedRef<ILumCompound>(FLumNodeCompound::Create(*Node));
}
}

const TCHAR* VexelEditWords::GetWord(EVexelEditOperation Operation) { return FindWord(Operation, OperationWords); }

EVexelEditOperation VexelEditWords::FindOperation(const FString& Word) { return FindByWord(Word, OperationWords); }

FString VexelEditWords::ListOperations() { return ListWords(OperationWords); }

FString VexelEditWords::ListTargets() { return ListWords(TargetWords); }

FString FEditRequest::FTargetInfo::Describe() const
{
	switch (Type)
	{
		case EVexelEditTarget::Blueprint:
			return TEXT("Blueprint");
		case EVexelEditTarget::Graph:
			return FString::Printf(TEXT("Graph (%s)"), *GraphId);
		case EVexelEditTarget::Node:
			return FString::Printf(TEXT("Node (%s) in Graph (%s)"), *NodeId, *GraphId);
		default:
			return TEXT("Unknown Target");
	}
}

FEditRequest FEditRequest::FromJson(const FJsonObject& Object)
{
	FEditRequest Request;
	Request.Target = ReadTarget(Object);
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (Object.TryGetArrayField(TEXT("operations"), Values))
	{
		for (const TSharedPtr<FJsonValue>& Value : *Values)
		{
			const TSharedPtr<FJsonObject>* OperationObject = nullptr;
			TOptional<FOperation> Operation;
			if (Value && Value->TryGetObject(OperationObject))
			{
				Operation = ReadOperation(**OperationObject);
			}
			if (Operation)
			{
				Request.Operations.Add(MoveTemp(*Operation));
			}
		}
	}
	return Request;
}

TVexelExpected<TSharedRef<ILumCompound>> FEditRequest::ResolveTarget(const FVexelBlueprintRequestHelper& Blueprint) const
{
	VEXEL_TRY(const TSharedRef<ILumCompound> Compound, Resolve(Blueprint, Target), "while resolving target `%s` for edit request",
		*Target.Describe());
	return Compound;
}
