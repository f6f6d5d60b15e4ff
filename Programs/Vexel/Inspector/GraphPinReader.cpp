#include "GraphPinReader.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "PackageValues.h"
#include "UObject/BlueprintsObjectVersion.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/ReleaseObjectVersion.h"
#include "UObject/UE5MainStreamObjectVersion.h"
#include "UObject/UE5ReleaseStreamObjectVersion.h"

namespace
{
/** A word that says whether there is none, a node, an id. */
constexpr int64 MinReferenceBytes = 4;
constexpr uint8 MapContainer = 3;

void AddText(FJsonObject& Object, const TCHAR* Name, FString&& Text)
{
	if (!Text.IsEmpty())
	{
		Object.SetStringField(Name, Text);
	}
}

void AddList(FJsonObject& Object, const TCHAR* Name, TArray<TSharedPtr<FJsonValue>>&& List)
{
	if (!List.IsEmpty())
	{
		Object.SetArrayField(Name, MoveTemp(List));
	}
}

/** Adds a value unless it is null. */
void AddValue(FJsonObject& Object, const TCHAR* Name, const TSharedPtr<FJsonValue>& Value)
{
	if (!Value->IsNull())
	{
		Object.SetField(Name, Value);
	}
}

/** Adds a text with its namespace and key unless it is empty. */
void AddLocalizedText(FJsonObject& Object, const TCHAR* Name, const TSharedPtr<FJsonValue>& Text)
{
	if (!Text->AsObject()->GetStringField(TEXT("text")).IsEmpty())
	{
		Object.SetField(Name, Text);
	}
}

const TCHAR* GetDirectionName(uint8 Direction)
{
	return Direction == 0 ? TEXT("input") : TEXT("output");
}
}

bool FGraphPinReader::HasPins() const
{
	return Values.GetLinker().CustomVer(FBlueprintsObjectVersion::GUID) >= FBlueprintsObjectVersion::EdGraphPinOptimized;
}

FString FGraphPinReader::ReadNameOrText()
{
	const bool bIsName = Values.GetLinker().CustomVer(FFrameworkObjectVersion::GUID) >= FFrameworkObjectVersion::PinsStoreFName;
	return bIsName ? Values.ReadName() : Values.Read<FString>();
}

FGraphPinReader::FValue FGraphPinReader::ReadTerminalType()
{
	const FLinkerLoad& Linker = Values.GetLinker();
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("TerminalCategory"), ReadNameOrText());
	Object->SetStringField(TEXT("TerminalSubCategory"), ReadNameOrText());
	Object->SetField(TEXT("TerminalSubCategoryObject"), Values.ReadReference());
	Object->SetBoolField(TEXT("bTerminalIsConst"), Values.Read<bool>());
	Object->SetBoolField(TEXT("bTerminalIsWeakPointer"), Values.Read<bool>());
	if (Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PinTypeIncludesUObjectWrapperFlag)
	{
		Object->SetBoolField(TEXT("bTerminalIsUObjectWrapper"), Values.Read<bool>());
	}
	return MakeShared<FJsonValueObject>(Object);
}

FGraphPinReader::FValue FGraphPinReader::ReadPinType()
{
	const TCHAR* const Containers[] = {TEXT("None"), TEXT("Array"), TEXT("Set"), TEXT("Map")};
	const FLinkerLoad& Linker = Values.GetLinker();
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("PinCategory"), ReadNameOrText());
	Object->SetStringField(TEXT("PinSubCategory"), ReadNameOrText());
	Object->SetField(TEXT("PinSubCategoryObject"), Values.ReadReference());
	uint8 Container = 0;
	if (Linker.CustomVer(FFrameworkObjectVersion::GUID) >= FFrameworkObjectVersion::EdGraphPinContainerType)
	{
		Container = FMath::Min(Values.Read<uint8>(), MapContainer);
		if (Container == MapContainer)
		{
			Object->SetField(TEXT("PinValueType"), ReadTerminalType());
		}
	}
	else
	{
		bool bIsMap = false;
		bool bIsSet = false;
		if (Linker.CustomVer(FBlueprintsObjectVersion::GUID) >= FBlueprintsObjectVersion::AdvancedContainerSupport)
		{
			bIsMap = Values.Read<bool>();
			if (bIsMap)
			{
				Object->SetField(TEXT("PinValueType"), ReadTerminalType());
			}
			bIsSet = Values.Read<bool>();
		}
		const bool bIsArray = Values.Read<bool>();
		Container = bIsMap ? MapContainer : bIsSet ? 2
			: bIsArray                             ? 1
												   : 0;
	}
	Object->SetStringField(TEXT("ContainerType"), Containers[Container]);
	Object->SetBoolField(TEXT("bIsReference"), Values.Read<bool>());
	Object->SetBoolField(TEXT("bIsWeakPointer"), Values.Read<bool>());
	if (Linker.UEVer() >= VER_UE4_MEMBERREFERENCE_IN_PINTYPE)
	{
		Object->SetField(TEXT("MemberParent"), Values.ReadReference());
		Object->SetStringField(TEXT("MemberName"), Values.ReadName());
		Object->SetStringField(TEXT("MemberGuid"), Values.Read<FGuid>().ToString());
	}
	if (Linker.UEVer() >= VER_UE4_SERIALIZE_PINTYPE_CONST)
	{
		Object->SetBoolField(TEXT("bIsConst"), Values.Read<bool>());
	}
	if (Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PinTypeIncludesUObjectWrapperFlag)
	{
		Object->SetBoolField(TEXT("bIsUObjectWrapper"), Values.Read<bool>());
	}
	if (Linker.CustomVer(FUE5ReleaseStreamObjectVersion::GUID) >=
		FUE5ReleaseStreamObjectVersion::SerializeFloatPinDefaultValuesAsSinglePrecision)
	{
		Object->SetBoolField(TEXT("bSerializeAsSinglePrecisionFloat"), Values.Read<bool>());
	}
	return MakeShared<FJsonValueObject>(Object);
}

FGraphPinReader::FValue FGraphPinReader::ReadPinReference()
{
	if (Values.Read<bool>())
	{
		return MakeShared<FJsonValueNull>();
	}
	const TSharedRef<FJsonObject> Reference = MakeShared<FJsonObject>();
	Reference->SetField(TEXT("node"), Values.ReadReference());
	Reference->SetStringField(TEXT("pin"), Values.Read<FGuid>().ToString());
	return MakeShared<FJsonValueObject>(Reference);
}

TArray<FGraphPinReader::FValue> FGraphPinReader::ReadPinReferences()
{
	TArray<FValue> References;
	for (int32 Left = Values.ReadCount(MinReferenceBytes); Left > 0 && !Values.GetLinker().IsError(); --Left)
	{
		References.Add(ReadPinReference());
	}
	return References;
}

void FGraphPinReader::ReadDefaults(FJsonObject& Pin)
{
	AddText(Pin, TEXT("default_value"), Values.Read<FString>());
	AddText(Pin, TEXT("autogenerated_default_value"), Values.Read<FString>());
	AddValue(Pin, TEXT("default_object"), Values.ReadReference());
	AddLocalizedText(Pin, TEXT("default_text"), Values.ReadText());
}

void FGraphPinReader::ReadLinks(FJsonObject& Pin)
{
	AddList(Pin, TEXT("linked_to"), ReadPinReferences());
	AddList(Pin, TEXT("sub_pins"), ReadPinReferences());
	AddValue(Pin, TEXT("parent_pin"), ReadPinReference());
	AddValue(Pin, TEXT("reference_pass_through"), ReadPinReference());
}

void FGraphPinReader::ReadFlags(FJsonObject& Pin)
{
	const TCHAR* const Names[] = {TEXT("hidden"), TEXT("not_connectable"), TEXT("default_value_is_read_only"),
		TEXT("default_value_is_ignored"), TEXT("advanced_view"), TEXT("orphaned")};
	if (const FGuid PersistentGuid = Values.Read<FGuid>(); PersistentGuid.IsValid())
	{
		Pin.SetStringField(TEXT("persistent_guid"), PersistentGuid.ToString());
	}
	const uint32 Flags = Values.Read<uint32>();
	TArray<FValue> Set;
	uint32 Bit = 1;
	for (const TCHAR* const Name : Names)
	{
		if (Flags & Bit)
		{
			Set.Add(MakeShared<FJsonValueString>(Name));
		}
		Bit <<= 1;
	}
	AddList(Pin, TEXT("flags"), MoveTemp(Set));
}

FGraphPinReader::FValue FGraphPinReader::ReadPin()
{
	// Who lists the pin names it too: whether there is one, its node, its id.
	if (Values.Read<bool>())
	{
		return MakeShared<FJsonValueNull>();
	}
	Values.ReadReference();
	Values.Read<FGuid>();
	FLinkerLoad& Linker = Values.GetLinker();
	const TSharedRef<FJsonObject> Pin = MakeShared<FJsonObject>();
	Values.ReadReference();
	Pin->SetStringField(TEXT("id"), Values.Read<FGuid>().ToString());
	Pin->SetStringField(TEXT("name"), ReadNameOrText());
	if (!Linker.IsFilterEditorOnly())
	{
		AddLocalizedText(*Pin, TEXT("friendly_name"), Values.ReadText());
	}
	if (Linker.CustomVer(FUE5MainStreamObjectVersion::GUID) >= FUE5MainStreamObjectVersion::EdGraphPinSourceIndex)
	{
		if (const int32 SourceIndex = Values.Read<int32>(); SourceIndex != INDEX_NONE)
		{
			Pin->SetNumberField(TEXT("source_index"), SourceIndex);
		}
	}
	AddText(*Pin, TEXT("tooltip"), Values.Read<FString>());
	Pin->SetStringField(TEXT("direction"), GetDirectionName(Values.Read<uint8>()));
	Pin->SetField(TEXT("type"), ReadPinType());
	ReadDefaults(*Pin);
	ReadLinks(*Pin);
	if (!Linker.IsFilterEditorOnly())
	{
		ReadFlags(*Pin);
	}
	return MakeShared<FJsonValueObject>(Pin);
}

TArray<FGraphPinReader::FValue> FGraphPinReader::ReadPins()
{
	TArray<FValue> Pins;
	for (int32 Left = Values.ReadCount(MinReferenceBytes); Left > 0 && !Values.GetLinker().IsError(); --Left)
	{
		Pins.Add(ReadPin());
	}
	return Values.GetLinker().IsError() ? TArray<FValue>() : Pins;
}

TArray<FGraphPinReader::FValue> FGraphPinReader::ReadUserDefinedPins()
{
	constexpr int64 MinPinBytes = 24;
	TArray<FValue> Pins;
	for (int32 Left = Values.ReadCount(MinPinBytes); Left > 0 && !Values.GetLinker().IsError(); --Left)
	{
		const TSharedRef<FJsonObject> Pin = MakeShared<FJsonObject>();
		Pin->SetStringField(TEXT("name"), ReadNameOrText());
		Pin->SetField(TEXT("type"), ReadPinType());
		Pin->SetStringField(TEXT("direction"), GetDirectionName(Values.Read<uint8>()));
		AddText(*Pin, TEXT("default_value"), Values.Read<FString>());
		Pins.Add(MakeShared<FJsonValueObject>(Pin));
	}
	return Values.GetLinker().IsError() ? TArray<FValue>() : Pins;
}
