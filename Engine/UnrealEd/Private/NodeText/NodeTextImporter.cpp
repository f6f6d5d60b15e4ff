#include "NodeTextImporter.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "Misc/FeedbackContext.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
/** More than any node has; keeps the work on a hostile text in proportion to its size. */
constexpr int32 MaxPinsOfNode = 8192;
constexpr int32 MaxObjectNameLength = 512;
const TCHAR* const LegacyPinClassName = TEXT("EdGraphPin");

/** Gives what an object says while it reads a line the line's place. */
class FLineFeedback : public FFeedbackContext
{
public:
	FLineFeedback(FNodeTextIssues& InIssues, const FObjectText& InText, int32 InLine)
		: Issues(InIssues)
		, Text(InText)
		, Line(InLine)
	{
	}

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		bSpoke = true;
		Issues.Add(Line, Text.Name, Text.ClassName, FString(V));
	}

	bool HasSpoken() const { return bSpoke; }

private:
	FNodeTextIssues& Issues;
	const FObjectText& Text;
	int32 Line;
	bool bSpoke = false;
};

bool IsUsableName(const FString& Name)
{
	if (Name.IsEmpty() || Name.Len() > MaxObjectNameLength)
	{
		return false;
	}
	for (const TCHAR Character : FString(INVALID_OBJECT_NAME_CHARACTERS))
	{
		int32 Index = INDEX_NONE;
		if (Name.FindChar(Character, Index))
		{
			return false;
		}
	}
	return true;
}

FName MakeInnerName(UObject* Outer, const UClass* Class, const FString& Name)
{
	const bool bFree = IsUsableName(Name) && !StaticFindObjectFast(nullptr, Outer, FName(*Name));
	return bFree ? FName(*Name) : MakeUniqueObjectName(Outer, Class);
}

UClass* FindClassByText(const FString& ClassName)
{
	if (ClassName.Len() > MaxObjectNameLength)
	{
		return nullptr;
	}
	if (ClassName == LegacyPinClassName)
	{
		return UEdGraphPin_Deprecated::StaticClass();
	}
	int32 Dot = INDEX_NONE;
	UClass* const Class = ClassName.FindChar(TEXT('.'), Dot) ? FindObject<UClass>(nullptr, *ClassName)
															 : FindFirstObject<UClass>(*ClassName, EFindFirstObjectOptions::NativeFirst);
	return Class && !UE::CoreUObject::IsPlaceholder(Class) ? Class : nullptr;
}

/** The path inside `EdGraphPin'Node.Pin'`, whatever its quotes. */
FString GetReferencedPath(const FString& Value)
{
	int32 Start = INDEX_NONE;
	int32 End = INDEX_NONE;
	if (!Value.FindChar(TEXT('\''), Start) || !Value.FindLastChar(TEXT('\''), End) || End <= Start)
	{
		return FString();
	}
	return Value.Mid(Start + 1, End - Start - 1).TrimQuotes();
}
}

FNodeTextImporter::FNodeTextImporter(UEdGraph& InDestination, FNodeTextImportResult& InResult)
	: Destination(InDestination)
	, Result(InResult)
	, Skipped(InResult.SkippedNodes)
	, Warnings(InResult.Warnings)
{
}

UClass* FNodeTextImporter::FindNodeClass(const UEdGraph& Destination, const FString& ClassName, FString& OutReason)
{
	UClass* const Class = FindClassByText(ClassName);
	if (!Class)
	{
		OutReason = ClassName.IsEmpty() ? TEXT("The object has no class") : TEXT("The class is not known here");
		return nullptr;
	}
	if (!Class->IsChildOf(UEdGraphNode::StaticClass()) || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		OutReason = TEXT("The class is no graph node");
		return nullptr;
	}
	const UEdGraphNode* const Defaults = Class->GetDefaultObject<UEdGraphNode>();
	if (!Defaults->CanDuplicateNode() || !Defaults->CanCreateUnderSpecifiedSchema(Destination.GetSchema()))
	{
		OutReason = TEXT("A graph of this kind cannot hold the node");
		return nullptr;
	}
	return Class;
}

void FNodeTextImporter::Import(const FString& Text)
{
	if (Text.Len() > FNodeTextLimits::MaxTextLength)
	{
		Result.Error = FString::Printf(TEXT("The text is longer than %d characters"), FNodeTextLimits::MaxTextLength);
		return;
	}
	const TArray<TUniquePtr<FObjectText>> Objects = ParseObjectTexts(Text, Warnings);
	if (Objects.Num() == 0)
	{
		Result.Error = TEXT("The text has no nodes: it must start with 'Begin Object'");
		return;
	}

	// A graph of their own lets the nodes keep the names that the text's links use.
	Staging = NewObject<UEdGraph>(GetTransientPackageAsObject(), NAME_None, RF_Transient);
	Staging->Schema = Destination.Schema;
	for (const TUniquePtr<FObjectText>& Object : Objects)
	{
		CreateNode(*Object);
	}
	for (const FPendingNode& Entry : Pending)
	{
		ImportObject(*Entry.Node, *Entry.Text);
	}
	FinishNodes();
	Staging->MarkAsGarbage();
}

void FNodeTextImporter::CreateNode(const FObjectText& Text)
{
	FString Reason;
	UClass* const Class = Text.bClosed ? FindNodeClass(Destination, Text.ClassName, Reason) : nullptr;
	if (!Class)
	{
		Skipped.Add(Text.Line, Text.Name, Text.ClassName, Text.bClosed ? Reason : FString(TEXT("The node's text is cut off")));
		return;
	}
	UEdGraphNode* const Node = NewObject<UEdGraphNode>(Staging, Class, MakeInnerName(Staging, Class, Text.Name), RF_Transactional);
	Staging->Nodes.Add(Node);
	Pending.Add({&Text, Node});
	CreateInnerObjects(*Node, Text);
}

void FNodeTextImporter::CreateInnerObjects(UObject& Owner, const FObjectText& Text)
{
	for (const TUniquePtr<FObjectText>& ChildText : Text.Children)
	{
		const FObjectText& Child = *ChildText;
		if (Child.ClassName.IsEmpty())
		{
			continue;
		}
		UClass* const Class = FindClassByText(Child.ClassName);
		if (!Class || Class->HasAnyClassFlags(CLASS_Abstract))
		{
			Warnings.Add(Child.Line, Child.Name, Child.ClassName, TEXT("The class of this inner object is not known here"));
			continue;
		}
		UObject* Object = IsUsableName(Child.Name) ? StaticFindObjectFast(Class, &Owner, FName(*Child.Name)) : nullptr;
		if (!Object)
		{
			Object = NewObject<UObject>(&Owner, Class, MakeInnerName(&Owner, Class, Child.Name), RF_Transactional);
		}
		CreateInnerObjects(*Object, Child);
	}
}

void FNodeTextImporter::ImportInnerObjects(UObject& Owner, const FObjectText& Text)
{
	for (const TUniquePtr<FObjectText>& ChildText : Text.Children)
	{
		const FObjectText& Child = *ChildText;
		if (UObject* const Object = IsUsableName(Child.Name) ? StaticFindObjectFast(nullptr, &Owner, FName(*Child.Name)) : nullptr)
		{
			ImportObject(*Object, Child);
			Object->PostEditImport();
		}
	}
}

void FNodeTextImporter::ImportObject(UObject& Object, const FObjectText& Text)
{
	ImportInnerObjects(Object, Text);
	for (const FObjectTextLine& Line : Text.Properties)
	{
		ImportProperty(Object, Text, Line);
	}
	for (int32 Index = 0; Index < Text.CustomProperties.Num(); ++Index)
	{
		const FObjectTextLine& Line = Text.CustomProperties[Index];
		if (Index >= MaxPinsOfNode)
		{
			Warnings.Add(Line.Line, Text.Name, Text.ClassName, FString::Printf(TEXT("The node has more than %d pins"), MaxPinsOfNode));
			break;
		}
		FLineFeedback Feedback(Warnings, Text, Line.Line);
		Object.ImportCustomProperties(*Line.Text, &Feedback);
	}
}

void FNodeTextImporter::ImportProperty(UObject& Object, const FObjectText& Text, const FObjectTextLine& Line)
{
	const FString Key = GetPropertyLineKey(Line.Text);
	FString PropertyName = Key;
	int32 Parenthesis = INDEX_NONE;
	if (Key.FindChar(TEXT('('), Parenthesis))
	{
		PropertyName = Key.Left(Parenthesis);
	}
	int32 EqualSign = INDEX_NONE;
	Line.Text.FindChar(TEXT('='), EqualSign);
	const FString Value = Line.Text.RightChop(EqualSign + 1);
	if (ImportLegacyPinReference(Object, PropertyName, Value))
	{
		return;
	}
	if (PropertyName.Len() > MaxObjectNameLength || !Object.GetClass()->FindPropertyByName(FName(*PropertyName)))
	{
		Warnings.Add(Line.Line, Text.Name, Text.ClassName, FString::Printf(TEXT("There is no property '%s'"), *PropertyName.Left(128)));
		return;
	}
	FLineFeedback Feedback(Warnings, Text, Line.Line);
	TArray<FDefinedProperty> Defined;
	const FString Assignment = Key + TEXT("=") + Value;
	const TCHAR* const End = FProperty::ImportSingleProperty(
		*Assignment, &Object, Object.GetClass(), &Object, PPF_Copy | PPF_Delimited | PPF_AttemptNonQualifiedSearch, &Feedback, Defined);
	if (!End && !Feedback.HasSpoken())
	{
		Warnings.Add(Line.Line, Text.Name, Text.ClassName,
			FString::Printf(TEXT("'%s' is no value of property '%s'"), *Value.Left(128), *PropertyName));
	}
}

bool FNodeTextImporter::ImportLegacyPinReference(UObject& Object, const FString& Key, const FString& Value)
{
	if (UEdGraphNode* const Node = Cast<UEdGraphNode>(&Object))
	{
		// The node's list of pin objects: the objects themselves are all that it says.
		UEdGraphPin_Deprecated* const Pin = Key == TEXT("Pins") ? FindObject<UEdGraphPin_Deprecated>(Node, *GetReferencedPath(Value))
																: nullptr;
		if (Pin)
		{
			Node->AddDeprecatedPin(Pin);
		}
		return Key == TEXT("Pins");
	}
	UEdGraphPin_Deprecated* const Pin = Cast<UEdGraphPin_Deprecated>(&Object);
	if (!Pin)
	{
		return false;
	}
	const bool bLinkedTo = Key == TEXT("LinkedTo");
	const bool bSubPins = Key == TEXT("SubPins");
	const bool bParentPin = Key == TEXT("ParentPin");
	if (!bLinkedTo && !bSubPins && !bParentPin)
	{
		return false;
	}
	// "Node.Pin", or "Pin" of the same node. Pins of nodes that are not in the text are not found.
	const FString Path = GetReferencedPath(Value);
	UEdGraphPin_Deprecated* Other = FindObject<UEdGraphPin_Deprecated>(Pin->GetOuter(), *Path);
	Other = Other ? Other : FindObject<UEdGraphPin_Deprecated>(Staging, *Path);
	if (Other && bLinkedTo)
	{
		Pin->LinkedTo.AddUnique(Other);
	}
	else if (Other && bSubPins)
	{
		Pin->SubPins.AddUnique(Other);
	}
	else if (Other)
	{
		Pin->ParentPin = Other;
	}
	return true;
}

void FNodeTextImporter::FinishNodes()
{
	UEdGraphPin::ResolveAllPinReferences();
	for (const FPendingNode& Entry : Pending)
	{
		Entry.Node->PostEditImport();
	}
	MakeLinksMutual();
	ReplaceRefusedNodes();
	MakeNodeGuidsUnique();
	Result.Nodes.Reserve(Staging->Nodes.Num());
	for (UEdGraphNode* const Node : Staging->Nodes)
	{
		Result.Nodes.Add(Node);
	}
	Staging->MoveNodesToAnotherGraph(&Destination, false, false);
}

void FNodeTextImporter::MakeLinksMutual()
{
	using FLink = TPair<UEdGraphPin*, UEdGraphPin*>;
	TSet<FLink> Links;
	for (const FPendingNode& Entry : Pending)
	{
		for (UEdGraphPin* const Pin : Entry.Node->Pins)
		{
			Pin->LinkedTo.RemoveAll(
				[Pin, &Links](UEdGraphPin* Linked)
				{
					bool bAlreadyThere = false;
					Links.Add(FLink(Pin, Linked), &bAlreadyThere);
					return Linked == Pin || bAlreadyThere;
				});
		}
	}
	for (const FPendingNode& Entry : Pending)
	{
		UEdGraphPin::SanitizeFamilies(Entry.Node->Pins);
	}
	for (const FLink& Link : Links)
	{
		if (Link.Key != Link.Value && !Links.Contains(FLink(Link.Value, Link.Key)))
		{
			Link.Value->LinkedTo.Add(Link.Key);
		}
	}
}

void FNodeTextImporter::ReplaceRefusedNodes()
{
	TSet<FName> NamesGiven;
	for (const FPendingNode& Entry : Pending)
	{
		if (Entry.Node->CanPasteHere(&Destination))
		{
			continue;
		}
		const UEdGraphSchema* const Schema = Destination.GetSchema();
		const UEdGraphNode* const Substitute = Schema ? Schema->CreateSubstituteNode(Entry.Node, &Destination, nullptr, NamesGiven)
													  : nullptr;
		if (Substitute)
		{
			const FString Title = Substitute->GetNodeTitle(ENodeTitleType::ListView).ToString();
			Warnings.Add(Entry.Text->Line, Entry.Text->Name, Entry.Text->ClassName,
				FString::Printf(TEXT("The Blueprint cannot have this event, or has it already: it became the custom event '%s'"), *Title));
		}
		else
		{
			Skipped.Add(Entry.Text->Line, Entry.Text->Name, Entry.Text->ClassName, TEXT("This graph cannot hold the node"));
		}
		Staging->RemoveNode(Entry.Node);
		Entry.Node->MarkAsGarbage();
	}
}

void FNodeTextImporter::MakeNodeGuidsUnique()
{
	TSet<FGuid> Taken;
	for (const UEdGraphNode* const Node : Destination.Nodes)
	{
		if (Node)
		{
			Taken.Add(Node->NodeGuid);
		}
	}
	for (UEdGraphNode* const Node : Staging->Nodes)
	{
		if (!Node->NodeGuid.IsValid() || Taken.Contains(Node->NodeGuid))
		{
			Node->CreateNewGuid();
		}
		Taken.Add(Node->NodeGuid);
	}
}
