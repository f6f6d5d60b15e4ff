#include "Internationalization/TextData.h"

#include "Serialization/Archive.h"
#include "UObject/EditorObjectVersion.h"

using UE::Core::Private::FTextData;

namespace
{
/** Texts inside texts: no saved text comes near it. */
constexpr int32 MaxDepth = 32;
thread_local int32 GDepth = 0;

struct FDepthScope
{
	FDepthScope() { ++GDepth; }
	~FDepthScope() { --GDepth; }
};

/** Flags that a file may set; the others are about this run. */
constexpr uint32 PersistentFlags =
	ETextFlag::CultureInvariant | ETextFlag::ConvertedProperty | ETextFlag::Immutable | ETextFlag::InitializedFromString;

void SerializeUnidentified(FArchive& Ar, FTextData& Data)
{
	Ar.UsingCustomVersion(FEditorObjectVersion::GUID);
	const int32 Version = Ar.CustomVer(FEditorObjectVersion::GUID);
	// Packages are also written in the form of their own engine; other archives are of today.
	const bool bIsOfToday = Ar.IsSaving() && !Ar.IsPersistent();
	const bool bIsOld = Ar.IsPersistent() && Version < 0;
	const bool bHasString =
		bIsOfToday || (Version < 0 && !bIsOld) || Version >= FEditorObjectVersion::CultureInvariantTextSerializationKeyStability;
	if (!bHasString)
	{
		return;
	}
	bool bHasCultureInvariantString = !Data.Display.IsEmpty();
	Ar << bHasCultureInvariantString;
	if (bHasCultureInvariantString)
	{
		Ar << Data.Display;
	}
}

void SerializeNamed(FArchive& Ar, FTextData& Data)
{
	Ar << Data.Pattern;
	int32 Num = Data.Named.Num();
	Ar << Num;
	if (Ar.IsSaving())
	{
		for (TPair<FString, FFormatArgumentValue>& Pair : Data.Named)
		{
			Ar << Pair.Key << Pair.Value;
		}
		return;
	}
	for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
	{
		FString Name;
		FFormatArgumentValue Value;
		Ar << Name << Value;
		Data.Named.Add(MoveTemp(Name), MoveTemp(Value));
	}
}

void SerializeOrdered(FArchive& Ar, FTextData& Data)
{
	Ar << Data.Pattern;
	int32 Num = Data.Ordered.Num();
	Ar << Num;
	if (Ar.IsSaving())
	{
		for (FFormatArgumentValue& Value : Data.Ordered)
		{
			Ar << Value;
		}
		return;
	}
	// Grows as it reads, so that a lying count fails at the archive's end instead of taking memory first.
	for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
	{
		Ar << Data.Ordered.Emplace_GetRef();
	}
}

void SerializeHistory(FArchive& Ar, FTextData& Data)
{
	switch (Data.Type)
	{
		case ETextHistoryType::None:
			return SerializeUnidentified(Ar, Data);
		case ETextHistoryType::Base:
			Ar << Data.Namespace << Data.Key << Data.Display;
			return;
		case ETextHistoryType::NamedFormat:
			return SerializeNamed(Ar, Data);
		case ETextHistoryType::OrderedFormat:
			return SerializeOrdered(Ar, Data);
		case ETextHistoryType::StringTableEntry:
			Ar << Data.TableId << Data.Key;
			return;
		default:
			Ar.SetError();
			return;
	}
}

FText LoadText(FArchive& Ar)
{
	uint32 Flags = 0;
	int8 Type = static_cast<int8>(ETextHistoryType::None);
	Ar << Flags << Type;
	std::shared_ptr<FTextData> Data = std::make_shared<FTextData>();
	Data->Type = static_cast<ETextHistoryType>(Type);
	SerializeHistory(Ar, *Data);
	if (Ar.IsError())
	{
		return FText::GetEmpty();
	}
	switch (Data->Type)
	{
		case ETextHistoryType::StringTableEntry:
			return FText::FromStringTable(Data->TableId, Data->Key);
		case ETextHistoryType::NamedFormat:
			return FText::Format(MoveTemp(Data->Pattern), MoveTemp(Data->Named));
		case ETextHistoryType::OrderedFormat:
			return FText::Format(MoveTemp(Data->Pattern), MoveTemp(Data->Ordered));
		default:
			return UE::Core::Private::MakeTextOfData(std::move(Data), Flags & PersistentFlags);
	}
}
}

void FText::SerializeText(FArchive& Ar, FText& Text)
{
	const FDepthScope Scope;
	if (GDepth > MaxDepth)
	{
		Ar.SetError();
		return;
	}
	if (Ar.IsLoading())
	{
		Text = LoadText(Ar);
		return;
	}
	// The archive's operators take variables, and saving leaves them as they are.
	FTextData Data = *Text.Data;
	uint32 SavedFlags = Text.Flags & PersistentFlags;
	int8 Type = static_cast<int8>(Data.Type);
	Ar << SavedFlags << Type;
	SerializeHistory(Ar, Data);
}

FArchive& operator<<(FArchive& Ar, FFormatArgumentValue& Value)
{
	int8 Type = static_cast<int8>(Value.Type);
	Ar << Type;
	Value.Type = static_cast<EFormatArgumentType::Type>(Type);
	switch (Value.Type)
	{
		case EFormatArgumentType::Int:
		case EFormatArgumentType::UInt:
			Ar << Value.IntValue;
			break;
		case EFormatArgumentType::Gender:
		{
			uint8 Gender = static_cast<uint8>(Value.IntValue);
			Ar << Gender;
			Value.IntValue = Gender;
			break;
		}
		case EFormatArgumentType::Float:
		{
			float Single = static_cast<float>(Value.DoubleValue);
			Ar << Single;
			Value.DoubleValue = static_cast<double>(Single);
			break;
		}
		case EFormatArgumentType::Double:
			Ar << Value.DoubleValue;
			break;
		case EFormatArgumentType::Text:
			Ar << Value.TextValue;
			break;
		default:
			Ar.SetError();
			break;
	}
	return Ar;
}
