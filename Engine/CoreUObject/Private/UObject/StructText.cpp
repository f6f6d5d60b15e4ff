#include "Misc/OutputDevice.h"
#include "UObject/Class.h"
#include "UObject/PropertyHelper.h"
#include "UObject/UnrealType.h"

namespace
{
/** "Name=", "Name[2]=" or "Name(2)=" taken off the front of a member's text. */
struct FMemberKey
{
	FString Name;
	int32 Index = 0;
};

void SkipQuoted(const TCHAR*& Text)
{
	++Text;
	while (*Text && *Text != TEXT('"'))
	{
		Text += *Text == TEXT('\\') && Text[1] ? 2 : 1;
	}
	Text += *Text ? 1 : 0;
}

/** Steps over a value of unknown type: to the comma or parenthesis that ends it. */
const TCHAR* SkipMemberValue(const TCHAR* Text)
{
	int32 Depth = 0;
	while (*Text)
	{
		if (*Text == TEXT('"'))
		{
			SkipQuoted(Text);
			continue;
		}
		if (Depth == 0 && (*Text == TEXT(',') || *Text == TEXT(')') || FChar::IsLinebreak(*Text)))
		{
			break;
		}
		Depth += *Text == TEXT('(') ? 1 : *Text == TEXT(')') ? -1
															 : 0;
		++Text;
	}
	return Text;
}

/** The position of the equals sign, or null. A name may hold blanks and brackets, so only a line's end stops the search. */
const TCHAR* FindEquals(const TCHAR* Text)
{
	while (*Text && *Text != TEXT('=') && !FChar::IsLinebreak(*Text))
	{
		++Text;
	}
	return *Text == TEXT('=') ? Text : nullptr;
}

/** Splits an index off the name's end when the struct has no member of the whole name. */
FMemberKey ParseKey(const UStruct* Struct, const FString& WholeName)
{
	FMemberKey Key;
	Key.Name = WholeName;
	const bool bHasIndex = WholeName.EndsWith(TEXT("]")) || WholeName.EndsWith(TEXT(")"));
	if (!bHasIndex || FindFProperty<FProperty>(Struct, *WholeName))
	{
		return Key;
	}
	int32 Open = INDEX_NONE;
	if (!WholeName.FindLastChar(WholeName.EndsWith(TEXT("]")) ? TEXT('[') : TEXT('('), Open))
	{
		return Key;
	}
	const FString Digits = WholeName.Mid(Open + 1, WholeName.Len() - Open - 2);
	if (Digits.IsNumeric())
	{
		Key.Name = WholeName.Left(Open).TrimEnd();
		Key.Index = FCString::Atoi(*Digits);
	}
	return Key;
}

FProperty* FindMember(const UStruct* Struct, const FString& Name)
{
	if (FProperty* const Found = FindFProperty<FProperty>(Struct, *Name))
	{
		return Found;
	}
	// A user-defined struct's members are known to users by what they typed.
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		if (It->GetAuthoredName().Equals(Name, ESearchCase::IgnoreCase))
		{
			return *It;
		}
	}
	return Struct->CustomFindProperty(FName(*Name));
}

void Warn(FOutputDevice* Device, const FString& Message)
{
	if (Device)
	{
		Device->Log(ELogVerbosity::Warning, *Message);
	}
}
}

const TCHAR* FProperty::ImportSingleProperty(const TCHAR* Str, void* DestData, const UStruct* ObjectStruct, UObject* SubobjectOuter,
	int32 PortFlags, FOutputDevice* Warnings, TArray<FDefinedProperty>& DefinedProperties)
{
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Str);
	const TCHAR* const Equals = FindEquals(Start);
	if (!Equals)
	{
		Warn(Warnings, FString::Printf(TEXT("Missing '=' in default properties assignment: %s"), Start));
		return nullptr;
	}
	const FString WholeName = FString(static_cast<int32>(Equals - Start), Start).TrimStartAndEnd().TrimQuotes();
	const FMemberKey Key = ParseKey(ObjectStruct, WholeName);
	const TCHAR* const Value = FPropertyHelpers::SkipWhitespace(Equals + 1);
	FProperty* const Property = FindMember(ObjectStruct, Key.Name);
	if (!Property)
	{
		Warn(Warnings, FString::Printf(TEXT("Unknown property in %s: %s"), *ObjectStruct->GetName(), *Key.Name));
		return SkipMemberValue(Value);
	}
	const FArrayProperty* const Array = CastField<FArrayProperty>(Property);
	// An index means an element of the static array where the member is one, even of arrays.
	const bool bIsArrayElement = Array && Property->ArrayDim == 1 && Key.Name != WholeName;
	if (Key.Index < 0 || (!bIsArrayElement && Key.Index >= Property->ArrayDim))
	{
		Warn(Warnings,
			FString::Printf(TEXT("Out of bound array default property (%d/%d) in %s: %s"), Key.Index, Property->ArrayDim,
				*ObjectStruct->GetName(), *Key.Name));
		return SkipMemberValue(Value);
	}
	const FDefinedProperty Defined{Property, Key.Index};
	if (DefinedProperties.Contains(Defined))
	{
		Warn(Warnings, FString::Printf(TEXT("redundant data: %s"), *WholeName));
	}
	DefinedProperties.AddUnique(Defined);
	if (!bIsArrayElement)
	{
		return Property->ImportText_Direct(
			Value, Property->ContainerPtrToValuePtr<void>(DestData, Key.Index), SubobjectOuter, PortFlags | PPF_Delimited, Warnings);
	}
	// An index in text is not a size to trust: elements come one after the other.
	FScriptArrayHelper Helper(Array, Array->ContainerPtrToValuePtr<void>(DestData));
	if (Key.Index > Helper.Num())
	{
		Warn(Warnings,
			FString::Printf(TEXT("Out of bound array default property (%d/%d) in %s: %s"), Key.Index, Helper.Num(),
				*ObjectStruct->GetName(), *Key.Name));
		return SkipMemberValue(Value);
	}
	Helper.ExpandForIndex(Key.Index);
	return Array->Inner->ImportText_Direct(Value, Helper.GetRawPtr(Key.Index), SubobjectOuter, PortFlags | PPF_Delimited, Warnings);
}

void UScriptStruct::ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
	UObject* ExportRootScope, bool bAllowNativeOverride) const
{
	ICppStructOps* const Ops = GetCppStructOps();
	if (bAllowNativeOverride && Ops && Ops->HasExportTextItem() &&
		Ops->ExportTextItem(ValueStr, Value, Defaults, OwnerObject, PortFlags, ExportRootScope))
	{
		return;
	}
	// An atomic struct is written as a unit, so none of its members is left out.
	const void* const MemberDefaults = StructFlags & STRUCT_Atomic ? nullptr : Defaults;
	int32 Count = 0;
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (!It->ShouldPort(PortFlags))
		{
			continue;
		}
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			// The name is written first and taken back where the value turns out to be the default.
			const int32 Start = ValueStr.Len();
			ValueStr += Count == 0 ? TEXT("(") : TEXT(",");
			ValueStr += PortFlags & (PPF_ExternalEditor | PPF_BlueprintDebugView) ? It->GetAuthoredName() : It->GetName();
			ValueStr += It->ArrayDim == 1 ? FString(TEXT("=")) : FString::Printf(TEXT("[%i]="), Index);
			const void* const Diff = PortFlags & PPF_ExternalEditor ? nullptr : MemberDefaults;
			if (It->ExportText_InContainer(Index, ValueStr, Value, Diff, OwnerObject, PortFlags | PPF_Delimited, ExportRootScope))
			{
				++Count;
				continue;
			}
			ValueStr.LeftInline(Start);
		}
	}
	ValueStr += Count > 0 ? TEXT(")") : TEXT("()");
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
	const FString& StructName, bool bAllowNativeOverride) const
{
	ICppStructOps* const Ops = GetCppStructOps();
	if (bAllowNativeOverride && Ops && Ops->HasImportTextItem())
	{
		const TCHAR* NativeBuffer = Buffer;
		if (Ops->ImportTextItem(NativeBuffer, Value, PortFlags, OwnerObject, ErrorText))
		{
			return NativeBuffer;
		}
	}
	const FValueNesting Nesting;
	if (Nesting.IsTooDeep())
	{
		Warn(ErrorText, FString::Printf(TEXT("%s: Values lie too deep in one another"), *StructName));
		return nullptr;
	}
	const TCHAR* Text = FPropertyHelpers::SkipWhitespace(Buffer);
	if (*Text != TEXT('('))
	{
		Warn(ErrorText, FString::Printf(TEXT("%s: Missing opening parenthesis: %s"), *StructName, Text));
		return nullptr;
	}
	TArray<FDefinedProperty> DefinedProperties;
	Text = FPropertyHelpers::SkipWhitespace(Text + 1);
	while (*Text != TEXT(')'))
	{
		if (!*Text)
		{
			Warn(ErrorText, FString::Printf(TEXT("%s: Missing closing parenthesis: %s"), *StructName, Buffer));
			return nullptr;
		}
		Text = FProperty::ImportSingleProperty(Text, Value, this, OwnerObject, PortFlags, ErrorText, DefinedProperties);
		if (!Text)
		{
			return nullptr;
		}
		Text = FPropertyHelpers::SkipWhitespace(Text);
		if (*Text == TEXT(','))
		{
			Text = FPropertyHelpers::SkipWhitespace(Text + 1);
		}
		else if (*Text != TEXT(')'))
		{
			Warn(ErrorText, FString::Printf(TEXT("%s: Missing closing parenthesis: %s"), *StructName, Buffer));
			return nullptr;
		}
	}
	return Text + 1;
}
