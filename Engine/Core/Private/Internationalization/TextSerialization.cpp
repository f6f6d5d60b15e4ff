#include "Internationalization/TextData.h"

#include "Serialization/Archive.h"
#include "UObject/EditorObjectVersion.h"
#include "UObject/ObjectVersion.h"
#include "UObject/UE5ReleaseStreamObjectVersion.h"

using UE::Core::Private::FArgumentList;
using UE::Core::Private::FDateTimeHistory;
using UE::Core::Private::FNumberHistory;
using UE::Core::Private::FNumberOptions;
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

/** Packages are also written in the form of their own engine; other archives are of today unless they name a version. */
bool HasVersion(FArchive& Ar, const FGuid& Stream, int32 Wanted)
{
	Ar.UsingCustomVersion(Stream);
	const int32 Version = Ar.CustomVer(Stream);
	const bool bIsOfToday = !Ar.IsPersistent() && (Ar.IsSaving() || Version < 0);
	return bIsOfToday || Version >= Wanted;
}

void SerializeUnidentified(FArchive& Ar, FTextData& Data)
{
	if (!HasVersion(Ar, FEditorObjectVersion::GUID, FEditorObjectVersion::CultureInvariantTextSerializationKeyStability))
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

/** The history of the kind, which a text that is being loaded does not have yet. */
template <typename HistoryType>
HistoryType& FindOrAddHistory(FTextData& Data)
{
	if (!Data.History.IsType<HistoryType>())
	{
		Data.History.Emplace<HistoryType>();
	}
	return Data.History.Get<HistoryType>();
}

void SerializeNamed(FArchive& Ar, FTextData& Data)
{
	FFormatNamedArguments& Named = FindOrAddHistory<FFormatNamedArguments>(Data);
	Ar << Data.Source;
	int32 Num = Named.Num();
	Ar << Num;
	if (Ar.IsSaving())
	{
		for (TPair<FString, FFormatArgumentValue>& Pair : Named)
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
		Named.Add(MoveTemp(Name), MoveTemp(Value));
	}
}

void SerializeOrdered(FArchive& Ar, FTextData& Data)
{
	FFormatOrderedArguments& Ordered = FindOrAddHistory<FFormatOrderedArguments>(Data);
	Ar << Data.Source;
	int32 Num = Ordered.Num();
	Ar << Num;
	if (Ar.IsSaving())
	{
		for (FFormatArgumentValue& Value : Ordered)
		{
			Ar << Value;
		}
		return;
	}
	// Grows as it reads, so that a lying count fails at the archive's end instead of taking memory first.
	for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
	{
		Ar << Ordered.Emplace_GetRef();
	}
}

template <typename ValueType>
void SerializeArgumentAs(FArchive& Ar, FFormatArgumentValue& Argument, ValueType Value)
{
	Ar << Value;
	if (Ar.IsLoading())
	{
		Argument = FFormatArgumentValue(MoveTemp(Value));
	}
}

/** The arguments of ArgumentFormat have a form of their own, which has changed more often than that of the other formats. */
void SerializeArgumentData(FArchive& Ar, FFormatArgumentValue& Value)
{
	if (!HasVersion(Ar, FEditorObjectVersion::GUID, FEditorObjectVersion::TextFormatArgumentDataIsVariant))
	{
		const bool bIsText = Value.GetType() == EFormatArgumentType::Text;
		return SerializeArgumentAs(Ar, Value, bIsText ? Value.GetTextValue() : FText::FromString(Value.ToFormattedString()));
	}
	uint8 Type = static_cast<uint8>(Value.GetType());
	Ar << Type;
	switch (static_cast<EFormatArgumentType::Type>(Type))
	{
		case EFormatArgumentType::Int:
			return HasVersion(
					   Ar, FUE5ReleaseStreamObjectVersion::GUID, FUE5ReleaseStreamObjectVersion::TextFormatArgumentData64bitSupport)
				? SerializeArgumentAs(Ar, Value, Value.GetIntValue())
				: SerializeArgumentAs(Ar, Value, static_cast<int32>(Value.GetIntValue()));
		case EFormatArgumentType::Float:
			return SerializeArgumentAs(Ar, Value, Value.GetFloatValue());
		case EFormatArgumentType::Double:
			return SerializeArgumentAs(Ar, Value, Value.GetDoubleValue());
		case EFormatArgumentType::Text:
			return SerializeArgumentAs(Ar, Value, Value.GetTextValue());
		case EFormatArgumentType::Gender:
			return SerializeArgumentAs(Ar, Value, Value.GetGenderValue());
		default:
			return Ar.SetError();
	}
}

void SerializeArgumentFormat(FArchive& Ar, FTextData& Data)
{
	FArgumentList& Arguments = FindOrAddHistory<FArgumentList>(Data);
	Ar << Data.Source;
	int32 Num = Arguments.Num();
	Ar << Num;
	for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
	{
		TPair<FString, FFormatArgumentValue>& Argument = Ar.IsLoading() ? Arguments.Emplace_GetRef() : Arguments[Index];
		Ar << Argument.Key;
		SerializeArgumentData(Ar, Argument.Value);
	}
}

/** One byte, and an error for a value without a name: what would follow it is not known. */
template <typename EnumType>
void SerializeNamedByte(FArchive& Ar, EnumType& Value, const TCHAR* (*GetName)(EnumType))
{
	int8 Byte = static_cast<int8>(Value);
	Ar << Byte;
	Value = static_cast<EnumType>(Byte);
	if (GetName(Value) == nullptr)
	{
		Ar.SetError();
	}
}

void SerializeNumberOptions(FArchive& Ar, FNumberOptions& Options)
{
	if (HasVersion(Ar, FEditorObjectVersion::GUID, FEditorObjectVersion::AddedAlwaysSignNumberFormattingOption))
	{
		Ar << Options.AlwaysSign;
	}
	Ar << Options.UseGrouping;
	SerializeNamedByte(Ar, Options.RoundingMode, &UE::Core::Private::GetRoundingModeName);
	Ar << Options.MinimumIntegralDigits << Options.MaximumIntegralDigits;
	Ar << Options.MinimumFractionalDigits << Options.MaximumFractionalDigits;
}

void SerializeNumber(FArchive& Ar, FTextData& Data)
{
	FNumberHistory& History = FindOrAddHistory<FNumberHistory>(Data);
	if (Data.Type == ETextHistoryType::AsCurrency && Ar.UEVer() >= VER_UE4_ADDED_CURRENCY_CODE_TO_FTEXT)
	{
		Ar << History.CurrencyCode;
	}
	Ar << History.Value;
	bool bHasOptions = History.Options.IsSet();
	Ar << bHasOptions;
	if (bHasOptions && !Ar.IsError())
	{
		FNumberOptions Options = History.Options.Get(FNumberOptions());
		SerializeNumberOptions(Ar, Options);
		History.Options = Options;
	}
	Ar << History.CultureName;
	if (!UE::Core::Private::IsNumber(History.Value))
	{
		Ar.SetError();
	}
}

void SerializeDateTime(FArchive& Ar, FTextData& Data)
{
	FDateTimeHistory& History = FindOrAddHistory<FDateTimeHistory>(Data);
	Ar << History.Value;
	if (Data.Type != ETextHistoryType::AsTime)
	{
		SerializeNamedByte(Ar, History.DateStyle, &UE::Core::Private::GetDateTimeStyleName);
	}
	if (Data.Type != ETextHistoryType::AsDate)
	{
		SerializeNamedByte(Ar, History.TimeStyle, &UE::Core::Private::GetDateTimeStyleName);
	}
	if (Ar.UEVer() >= VER_UE4_FTEXT_HISTORY_DATE_TIMEZONE)
	{
		Ar << History.TimeZone;
	}
	Ar << History.CultureName;
}

void SerializeTransform(FArchive& Ar, FTextData& Data)
{
	ETextTransform& Transform = FindOrAddHistory<ETextTransform>(Data);
	uint8 Byte = static_cast<uint8>(Transform);
	Ar << Data.Source << Byte;
	Transform = static_cast<ETextTransform>(Byte);
	if (Transform != ETextTransform::ToLower && Transform != ETextTransform::ToUpper)
	{
		Ar.SetError();
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
		case ETextHistoryType::ArgumentFormat:
			return SerializeArgumentFormat(Ar, Data);
		case ETextHistoryType::AsNumber:
		case ETextHistoryType::AsPercent:
		case ETextHistoryType::AsCurrency:
			return SerializeNumber(Ar, Data);
		case ETextHistoryType::AsDate:
		case ETextHistoryType::AsTime:
		case ETextHistoryType::AsDateTime:
			return SerializeDateTime(Ar, Data);
		case ETextHistoryType::Transform:
			return SerializeTransform(Ar, Data);
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
	FTextData Data;
	Data.Type = static_cast<ETextHistoryType>(Type);
	SerializeHistory(Ar, Data);
	return Ar.IsError() ? FText::GetEmpty() : UE::Core::Private::MakeTextOfParts(MoveTemp(Data), Flags & PersistentFlags);
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
