#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "Internationalization/Text.h"
#include "Misc/OutputDevice.h"
#include "Misc/Parse.h"
#include "UObject/UnrealType.h"
#include "UnresolvedPins.h"

namespace
{
const TCHAR* SkipSpaceAndCommas(const TCHAR* Text)
{
	while (*Text == TEXT(',') || FChar::IsWhitespace(*Text))
	{
		++Text;
	}
	return Text;
}

/** The end of a value: the comma or parenthesis that closes it. Null when a quote or a parenthesis stays open. */
const TCHAR* FindValueEnd(const TCHAR* Text)
{
	int32 Depth = 0;
	bool bQuoted = false;
	for (; *Text; ++Text)
	{
		const TCHAR Character = *Text;
		if (bQuoted)
		{
			if (Character == TEXT('\\') && Text[1])
			{
				++Text;
			}
			else if (Character == TEXT('"'))
			{
				bQuoted = false;
			}
			continue;
		}
		if (Character == TEXT('"'))
		{
			bQuoted = true;
		}
		else if (Character == TEXT('('))
		{
			++Depth;
		}
		else if (Depth == 0 && (Character == TEXT(',') || Character == TEXT(')')))
		{
			return Text;
		}
		else if (Character == TEXT(')'))
		{
			--Depth;
		}
	}
	return nullptr;
}

FString ReadQuoted(const FString& Value)
{
	FString Result;
	if (Value.StartsWith(TEXT("\""), ESearchCase::CaseSensitive) && FParse::QuotedString(*Value, Result))
	{
		return Result;
	}
	return Value;
}

/** `NSLOCTEXT(...)` and its kin, or a quoted string. */
FText ReadText(const FString& Value)
{
	FText Result;
	if (!FTextStringHelper::ReadFromBuffer(*Value, Result, nullptr, nullptr, true))
	{
		return FText::FromString(ReadQuoted(Value));
	}
	return Result;
}

/** A class pin's default is a class, even one that this host knows by name alone. */
UObject* ReadDefaultObject(const FString& Value, const FEdGraphPinType& PinType, UObject* Parent)
{
	const FString Path = ReadQuoted(Value);
	if (Path.IsEmpty() || Path == TEXT("None"))
	{
		return nullptr;
	}
	const bool bIsClass = PinType.PinCategory == FName(TEXT("class")) || PinType.PinCategory == FName(TEXT("softclass"));
	UClass* const ObjectClass = bIsClass ? UClass::StaticClass() : UObject::StaticClass();
	return FObjectPropertyBase::FindImportedObject(nullptr, Parent, ObjectClass, nullptr, *Path, PPF_None);
}
}

/** Reads one pin's text into a pin, key by key. */
class FPinTextReader
{
public:
	FPinTextReader(UEdGraphPin& InPin, int32 InPortFlags, UObject* InParent, FOutputDevice* InErrorText)
		: Pin(InPin)
		, PortFlags(InPortFlags)
		, Parent(InParent)
		, ErrorText(InErrorText)
	{
	}

	/** Null when the text is no pin. */
	const TCHAR* Read(const TCHAR* Buffer)
	{
		Buffer = SkipSpaceAndCommas(Buffer);
		if (*Buffer != TEXT('('))
		{
			return Fail(TEXT("A pin must start with '('"));
		}
		for (Buffer = SkipSpaceAndCommas(Buffer + 1); *Buffer != TEXT(')'); Buffer = SkipSpaceAndCommas(Buffer))
		{
			Buffer = ReadEntry(Buffer);
			if (!Buffer)
			{
				return nullptr;
			}
		}
		// The pin's own id is needed to wait for others, and may stand anywhere in the text.
		for (const FReference& Reference : References)
		{
			FUnresolvedPins::Get().Add(Reference.Awaited, &Pin, Reference.ResolveType, Reference.Index);
		}
		for (const FReference& Reference : References)
		{
			if (UEdGraphPin* const Found = Reference.Awaited.Get())
			{
				FUnresolvedPins::Get().Resolve(Found);
			}
		}
		return Buffer + 1;
	}

private:
	struct FReference
	{
		FEdGraphPinReference Awaited;
		EPinResolveType ResolveType;
		int32 Index;
	};

	const TCHAR* ReadEntry(const TCHAR* Buffer)
	{
		const bool bQuotedKey = *Buffer == TEXT('"');
		const TCHAR* const KeyStart = bQuotedKey ? Buffer + 1 : Buffer;
		const TCHAR* KeyEnd = KeyStart;
		while (FChar::IsAlnum(*KeyEnd) || *KeyEnd == TEXT('_') || *KeyEnd == TEXT('.'))
		{
			++KeyEnd;
		}
		const TCHAR* ValueStart = bQuotedKey && *KeyEnd == TEXT('"') ? KeyEnd + 1 : KeyEnd;
		if (KeyEnd == KeyStart || *ValueStart != TEXT('='))
		{
			return Fail(*KeyEnd ? TEXT("A pin's entry must be Name=Value") : TEXT("The pin's text ends before its closing ')'"));
		}
		++ValueStart;
		const TCHAR* const ValueEnd = FindValueEnd(ValueStart);
		if (!ValueEnd)
		{
			return Fail(TEXT("The pin's text ends before its closing ')'"));
		}
		Apply(FString(static_cast<int32>(KeyEnd - KeyStart), KeyStart), FString(static_cast<int32>(ValueEnd - ValueStart), ValueStart));
		return ValueEnd;
	}

	void Apply(const FString& Key, const FString& Value)
	{
		using FSetter = void (*)(FPinTextReader&, const FString&);
		static const TMap<FString, FSetter> Setters = {
			{TEXT("PinId"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadGuid(Text, This.Pin.PinId); }},
			{TEXT("PinName"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.PinName = FName(*ReadQuoted(Text)); }},
			{TEXT("PinFriendlyName"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.PinFriendlyName = ReadText(Text); }},
			{TEXT("SourceIndex"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadSourceIndex(Text); }},
			{TEXT("PinToolTip"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.PinToolTip = ReadQuoted(Text); }},
			{TEXT("Direction"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.Direction = This.ReadDirection(Text); }},
			{TEXT("DefaultValue"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.DefaultValue = ReadQuoted(Text); }},
			{TEXT("AutogeneratedDefaultValue"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.AutogeneratedDefaultValue = ReadQuoted(Text); }},
			{TEXT("DefaultObject"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.DefaultObject = ReadDefaultObject(Text, This.Pin.PinType, This.Parent); }},
			{TEXT("DefaultTextValue"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.DefaultTextValue = ReadText(Text); }},
			{TEXT("LinkedTo"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadPinArray(Text, EPinResolveType::LinkedTo); }},
			{TEXT("SubPins"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadPinArray(Text, EPinResolveType::SubPins); }},
			{TEXT("ParentPin"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadPinReference(Text, EPinResolveType::ParentPin, 0); }},
			{TEXT("ReferencePassThroughConnection"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadPinReference(Text, EPinResolveType::ReferencePassThroughConnection, 0); }},
			{TEXT("PersistentGuid"), [](FPinTextReader& This, const FString& Text)
				{ This.ReadGuid(Text, This.Pin.PersistentGuid); }},
			{TEXT("bHidden"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.bHidden = This.ReadFlag(Text); }},
			{TEXT("bNotConnectable"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.bNotConnectable = This.ReadFlag(Text); }},
			{TEXT("bDefaultValueIsReadOnly"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.bDefaultValueIsReadOnly = This.ReadFlag(Text); }},
			{TEXT("bDefaultValueIsIgnored"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.bDefaultValueIsIgnored = This.ReadFlag(Text); }},
			{TEXT("bAdvancedView"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.bAdvancedView = This.ReadFlag(Text); }},
			{TEXT("bOrphanedPin"), [](FPinTextReader& This, const FString& Text)
				{ This.Pin.bOrphanedPin = This.ReadFlag(Text); }},
		};

		static const FString PinTypePrefix = TEXT("PinType.");
		if (Key.StartsWith(PinTypePrefix))
		{
			ReadPinTypeMember(Key.RightChop(PinTypePrefix.Len()), Value);
		}
		else if (const FSetter* const Setter = Setters.Find(Key))
		{
			(*Setter)(*this, Value);
		}
		// Other keys are of engines newer or older than the ones known here.
	}

	void ReadGuid(const FString& Text, FGuid& OutGuid)
	{
		if (!FGuid::Parse(ReadQuoted(Text), OutGuid))
		{
			Fail(*FString::Printf(TEXT("'%s' is no guid"), *Text.Left(64)));
		}
	}

	bool ReadFlag(const FString& Text)
	{
		const bool bTrue = Text.Equals(TEXT("True"), ESearchCase::IgnoreCase) || Text == TEXT("1");
		if (!bTrue && !Text.Equals(TEXT("False"), ESearchCase::IgnoreCase) && Text != TEXT("0"))
		{
			Fail(*FString::Printf(TEXT("'%s' is neither True nor False"), *Text.Left(64)));
		}
		return bTrue;
	}

	EEdGraphPinDirection ReadDirection(const FString& Text)
	{
		const FString Name = ReadQuoted(Text);
		const bool bOutput = Name.Equals(TEXT("EGPD_Output"), ESearchCase::IgnoreCase);
		if (!bOutput && !Name.Equals(TEXT("EGPD_Input"), ESearchCase::IgnoreCase))
		{
			Fail(*FString::Printf(TEXT("'%s' is no direction of a pin"), *Text.Left(64)));
		}
		return bOutput ? EGPD_Output : EGPD_Input;
	}

	void ReadSourceIndex(const FString& Text)
	{
		if (!LexTryParseString(Pin.SourceIndex, *Text))
		{
			Fail(*FString::Printf(TEXT("'%s' is no number of a parameter"), *Text.Left(64)));
		}
	}

	void ReadPinTypeMember(const FString& Member, const FString& Value)
	{
		const FProperty* const Property = FEdGraphPinType::StaticStruct()->FindPropertyByName(FName(*Member));
		if (!Property)
		{
			return;
		}
		if (!Property->ImportText_Direct(
				*Value, Property->ContainerPtrToValuePtr<void>(&Pin.PinType), Parent, PortFlags | PPF_Delimited, ErrorText))
		{
			Fail(*FString::Printf(TEXT("'%s' is no value of PinType.%s"), *Value.Left(256), *Member));
		}
	}

	void ReadPinArray(const FString& Value, EPinResolveType ResolveType)
	{
		FString List = Value.TrimStartAndEnd();
		List.RemoveFromStart(TEXT("("));
		List.RemoveFromEnd(TEXT(")"));
		TArray<FString> Items;
		List.ParseIntoArray(Items, TEXT(","), true);
		for (int32 Index = 0; Index < Items.Num(); ++Index)
		{
			ReadPinReference(Items[Index], ResolveType, Index);
		}
		FUnresolvedPins::Get().SetPlaces(&Pin, ResolveType, {});
	}

	/** "NodeName PinGuid". A node that is not in the graph is not in the text: the reference is dropped. */
	void ReadPinReference(const FString& Reference, EPinResolveType ResolveType, int32 Index)
	{
		FString NodeName;
		FString PinGuidText;
		FGuid PinGuid;
		if (!Reference.TrimStartAndEnd().Split(TEXT(" "), &NodeName, &PinGuidText, ESearchCase::CaseSensitive) ||
			!FGuid::Parse(PinGuidText, PinGuid))
		{
			Fail(*FString::Printf(TEXT("'%s' is no reference to a pin"), *Reference.Left(128)));
			return;
		}
		UEdGraphNode* const Node = Parent ? FindObject<UEdGraphNode>(Parent->GetOuter(), *NodeName) : nullptr;
		if (Node)
		{
			FReference& Added = References.AddDefaulted_GetRef();
			Added.Awaited.SetPinById(Node, PinGuid);
			Added.ResolveType = ResolveType;
			Added.Index = Index;
		}
	}

	const TCHAR* Fail(const TCHAR* Message)
	{
		if (ErrorText)
		{
			ErrorText->Log(Message);
		}
		return nullptr;
	}

	UEdGraphPin& Pin;
	int32 PortFlags;
	UObject* Parent;
	FOutputDevice* ErrorText;
	TArray<FReference> References;
};

bool UEdGraphPin::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	const TCHAR* const End = FPinTextReader(*this, PortFlags, Parent, ErrorText).Read(Buffer);
	if (!End)
	{
		return false;
	}
	Buffer = End;
	return true;
}
