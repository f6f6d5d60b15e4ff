#include "Chat/ToolSummary.h"

#include "Chat/ChatDisplay.h"
#include "Misc/PackageName.h"
#include "VexelStringUtil.h"

namespace
{
constexpr int32 MaxEdits = 8;
constexpr int32 MaxTextLength = 60;

FString GetText(const FJsonObject& Object, const TCHAR* Key)
{
	FString Text;
	Object.TryGetStringField(Key, Text);
	return FVexelStringUtil::ToPrintableLine(Text, MaxTextLength);
}

/** The objects of an array; anything else in it is passed over. */
TArray<TSharedPtr<FJsonObject>> GetObjects(const FJsonObject& Object, const TCHAR* Key)
{
	TArray<TSharedPtr<FJsonObject>> Objects;
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (Object.TryGetArrayField(Key, Values))
	{
		for (const TSharedPtr<FJsonValue>& Value : *Values)
		{
			const TSharedPtr<FJsonObject>* Item = nullptr;
			if (Value && Value->TryGetObject(Item))
			{
				Objects.Add(*Item);
			}
		}
	}
	return Objects;
}

FString InGraph(const FJsonObject& Input)
{
	const FString Graph = GetText(Input, TEXT("graph"));
	return Graph.IsEmpty() ? FString() : TEXT(" in ") + Graph;
}

void SummarizeSpawn(const FJsonObject& Input, TArray<FString>& Edits)
{
	for (const TSharedPtr<FJsonObject>& Node : GetObjects(Input, TEXT("nodes")))
	{
		Edits.Add(TEXT("+ node ") + GetText(*Node, TEXT("node_type")) + InGraph(Input));
	}
}

void SummarizeLink(const FJsonObject& Input, TArray<FString>& Edits)
{
	for (const TSharedPtr<FJsonObject>& Link : GetObjects(Input, TEXT("links")))
	{
		bool bRemove = false;
		Link->TryGetBoolField(TEXT("remove"), bRemove);
		Edits.Add(FString(bRemove ? TEXT("- link ") : TEXT("+ link ")) + GetText(*Link, TEXT("from_node")) + TEXT(".") +
			GetText(*Link, TEXT("from_pin")) + TEXT(" → ") + GetText(*Link, TEXT("to_node")) + TEXT(".") + GetText(*Link, TEXT("to_pin")));
	}
}

void SummarizeRemove(const FJsonObject& Input, TArray<FString>& Edits)
{
	const TArray<TSharedPtr<FJsonValue>>* Nodes = nullptr;
	if (!Input.TryGetArrayField(TEXT("nodes"), Nodes))
	{
		return;
	}
	for (const TSharedPtr<FJsonValue>& Node : *Nodes)
	{
		FString Id;
		if (Node && Node->TryGetString(Id))
		{
			Edits.Add(TEXT("- node ") + FVexelStringUtil::ToPrintableLine(Id, MaxTextLength) + InGraph(Input));
		}
	}
}

/** An operation of "object_edit" by its first word: add, insert, remove, set, ... */
const TCHAR* GetSign(const FString& Operation)
{
	if (Operation.StartsWith(TEXT("add")) || Operation.StartsWith(TEXT("insert")))
	{
		return TEXT("+ ");
	}
	return Operation.StartsWith(TEXT("remove")) || Operation.StartsWith(TEXT("delete")) ? TEXT("- ") : TEXT("~ ");
}

void SummarizeObjectEdit(const FJsonObject& Input, TArray<FString>& Edits)
{
	for (const TSharedPtr<FJsonObject>& Request : GetObjects(Input, TEXT("requests")))
	{
		FString Target;
		const TSharedPtr<FJsonObject>* TargetObject = nullptr;
		if (Request->TryGetObjectField(TEXT("target"), TargetObject))
		{
			Target = GetText(**TargetObject, TEXT("node"));
			Target = Target.IsEmpty() ? GetText(**TargetObject, TEXT("graph")) : Target;
		}
		for (const TSharedPtr<FJsonObject>& Operation : GetObjects(*Request, TEXT("operations")))
		{
			const FString Kind = GetText(*Operation, TEXT("operation"));
			const FString Path = GetText(*Operation, TEXT("prop_path"));
			const FString Name = Path.IsEmpty() ? GetText(*Operation, TEXT("name")) : Path;
			const FString Value = GetText(*Operation, TEXT("value"));
			Edits.Add(GetSign(Kind) + Kind.Replace(TEXT("_"), TEXT(" ")) + (Name.IsEmpty() ? FString() : TEXT(" ") + Name) +
				(Value.IsEmpty() ? FString() : TEXT(" = ") + Value) + (Target.IsEmpty() ? FString() : TEXT(" of ") + Target));
		}
	}
}

void SummarizeGraphAdd(const FJsonObject& Input, TArray<FString>& Edits)
{
	Edits.Add(TEXT("+ graph ") + GetText(Input, TEXT("graph")));
}

void SummarizeGraphRemove(const FJsonObject& Input, TArray<FString>& Edits)
{
	Edits.Add(TEXT("- graph ") + GetText(Input, TEXT("graph")));
}

struct FEditTool
{
	const TCHAR* Name;
	void (*Summarize)(const FJsonObject& Input, TArray<FString>& Edits);
};

constexpr FEditTool EditTools[] = {
	{TEXT("node_spawn"), SummarizeSpawn},
	{TEXT("node_link"), SummarizeLink},
	{TEXT("node_remove"), SummarizeRemove},
	{TEXT("object_edit"), SummarizeObjectEdit},
	{TEXT("graph_add"), SummarizeGraphAdd},
	{TEXT("graph_remove"), SummarizeGraphRemove},
};

/** Keys of an input that say what it is about, the first that is there counts. */
constexpr const TCHAR* SubjectKeys[] = {TEXT("blueprint"), TEXT("asset"), TEXT("file"), TEXT("symbol"), TEXT("query"), TEXT("path")};
}

TArray<FString> SummarizeEdits(const FChatToolCall& Call)
{
	TArray<FString> Edits;
	for (const FEditTool& Tool : EditTools)
	{
		if (Call.Input && Call.Name.Equals(Tool.Name))
		{
			Tool.Summarize(*Call.Input, Edits);
		}
	}
	if (Edits.Num() > MaxEdits)
	{
		const int32 NumMore = Edits.Num() - MaxEdits + 1;
		Edits.SetNum(MaxEdits - 1);
		Edits.Add(FString::Printf(TEXT("… and %d more"), NumMore));
	}
	return Edits;
}

FString DescribeSubject(const FChatToolCall& Call)
{
	for (const TCHAR* const Key : SubjectKeys)
	{
		const FString Text = Call.Input ? GetText(*Call.Input, Key) : FString();
		if (!Text.IsEmpty())
		{
			return Text.StartsWith(TEXT("/")) ? FPackageName::GetShortName(FPackageName::ObjectPathToPackageName(Text)) : Text;
		}
	}
	return FString();
}
