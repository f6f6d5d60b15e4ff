#include "DiffDocument.h"

#include "BlueprintDiff.h"
#include "Dom/JsonObject.h"

namespace
{
const TCHAR* ToWord(EDifference Kind)
{
	return Kind == EDifference::Added ? TEXT("added") : Kind == EDifference::Removed ? TEXT("removed")
																					 : TEXT("changed");
}

void SetOptional(const TSharedRef<FJsonObject>& Object, const TCHAR* Key, const FString& Value)
{
	if (!Value.IsEmpty())
	{
		Object->SetStringField(Key, Value);
	}
}

/** Sets an array of documents, each made of an item; nothing for no items. */
template <class ItemType, class MakeType>
void SetItems(const TSharedRef<FJsonObject>& Object, const TCHAR* Key, const TArray<ItemType>& Items, const MakeType& Make)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const ItemType& Item : Items)
	{
		Values.Add(MakeShared<FJsonValueObject>(Make(Item)));
	}
	if (!Values.IsEmpty())
	{
		Object->SetArrayField(Key, MoveTemp(Values));
	}
}

TSharedRef<FJsonObject> MakeValue(const FValueDifference& Value)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("name"), Value.Name);
	SetOptional(Object, TEXT("before"), Value.Before);
	SetOptional(Object, TEXT("after"), Value.After);
	return Object;
}

TSharedRef<FJsonObject> MakeMember(const FMemberDifference& Member)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("change"), ToWord(Member.Kind));
	Object->SetStringField(TEXT("kind"), Member.What);
	Object->SetStringField(TEXT("name"), Member.Name);
	SetOptional(Object, TEXT("old_name"), Member.OldName);
	SetItems(Object, TEXT("values"), Member.Values, MakeValue);
	return Object;
}

TSharedRef<FJsonObject> MakeAspect(const FAspectDifference& Aspect)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("aspect"), ToWord(Aspect.Aspect));
	SetOptional(Object, TEXT("name"), Aspect.Name);
	SetOptional(Object, TEXT("before"), Aspect.Before);
	SetOptional(Object, TEXT("after"), Aspect.After);
	return Object;
}

TSharedRef<FJsonObject> MakeNode(const FNodeDifference& Node, const FGraphDifference& Graph)
{
	const FNodeSnapshot& Shown = Node.After == INDEX_NONE ? Graph.Before->Nodes[Node.Before] : Graph.After->Nodes[Node.After];
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("change"), ToWord(Node.Kind));
	Object->SetStringField(TEXT("guid"), Shown.Id.ToString());
	Object->SetStringField(TEXT("title"), Shown.Title);
	Object->SetStringField(TEXT("class"), Shown.Class);
	SetItems(Object, TEXT("aspects"), Node.Aspects, MakeAspect);
	if (Node.bFollows)
	{
		Object->SetBoolField(TEXT("follows_rename"), true);
	}
	return Object;
}

TSharedRef<FJsonObject> MakeWireEnd(const FPinLink& End, const FGraphSnapshot& Graph)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("guid"), Graph.Nodes[End.Node].Id.ToString());
	Object->SetStringField(TEXT("title"), Graph.Nodes[End.Node].Title);
	Object->SetStringField(TEXT("pin"), Graph.GetPin(End).Name.ToString());
	return Object;
}

TSharedRef<FJsonObject> MakeGraph(const FGraphDifference& Graph)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("change"), ToWord(Graph.Kind));
	Object->SetStringField(TEXT("kind"), Graph.GetShown().Kind);
	Object->SetStringField(TEXT("name"), Graph.GetShown().Name);
	SetOptional(Object, TEXT("old_name"), Graph.IsRenamed() ? Graph.Before->Name : FString());
	SetItems(Object, TEXT("members"), Graph.Members, MakeMember);
	SetItems(Object, TEXT("nodes"), Graph.Nodes, [&](const FNodeDifference& Node)
		{ return MakeNode(Node, Graph); });
	SetItems(Object, TEXT("wires"), Graph.Wires, [&](const FWireDifference& Wire)
		{
			const FGraphSnapshot& Owner = Wire.Kind == EDifference::Added ? *Graph.After : *Graph.Before;
			const TSharedRef<FJsonObject> Made = MakeShared<FJsonObject>();
			Made->SetStringField(TEXT("change"), ToWord(Wire.Kind));
			Made->SetObjectField(TEXT("from"), MakeWireEnd(Wire.From, Owner));
			Made->SetObjectField(TEXT("to"), MakeWireEnd(Wire.To, Owner));
			return Made; });
	return Object;
}
}

TSharedRef<FJsonObject> MakeDiffDocument(const FBlueprintDiff& Diff)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("blueprint"), Diff.GetShown().Path);
	Object->SetStringField(TEXT("change"), ToWord(Diff.GetKind()));
	SetItems(Object, TEXT("settings"), Diff.Settings, MakeValue);
	SetItems(Object, TEXT("members"), Diff.Members, MakeMember);
	SetItems(Object, TEXT("class_defaults"), Diff.ClassDefaults, MakeValue);
	SetItems(Object, TEXT("graphs"), Diff.Graphs, MakeGraph);
	return Object;
}

TArray<TSharedPtr<FJsonValue>> MakeDiffDocuments(const TArray<FBlueprintDiff>& Diffs)
{
	TArray<TSharedPtr<FJsonValue>> Documents;
	for (const FBlueprintDiff& Diff : Diffs)
	{
		Documents.Add(MakeShared<FJsonValueObject>(MakeDiffDocument(Diff)));
	}
	return Documents;
}
