#pragma once

#include "Containers/Map.h"
#include "Internationalization/Text.h"
#include "Misc/DateTime.h"
#include "Misc/TVariant.h"
#include "UObject/NameTypes.h"

/** How a text came to be; the values are those of the binary form. */
enum class ETextHistoryType : int8
{
	None = -1,
	Base = 0,
	NamedFormat,
	OrderedFormat,
	ArgumentFormat,
	AsNumber,
	AsPercent,
	AsCurrency,
	AsDate,
	AsTime,
	AsDateTime,
	Transform,
	StringTableEntry,
	TextGenerator
};

/** How a number loses the digits that are not shown; the values are those of the binary form. */
enum class ERoundingMode : int8
{
	HalfToEven,
	HalfFromZero,
	HalfToZero,
	FromZero,
	ToZero,
	ToNegativeInfinity,
	ToPositiveInfinity
};

/** The values are those of the binary form. */
enum class ETextTransform : uint8
{
	ToLower,
	ToUpper
};

namespace UE::Core::Private
{
struct FNumberOptions : FNumberFormattingOptions
{
	FNumberOptions() = default;
	explicit FNumberOptions(const FNumberFormattingOptions& Options)
		: FNumberFormattingOptions(Options)
	{
	}
	bool operator==(const FNumberOptions& Other) const;

	ERoundingMode RoundingMode = ERoundingMode::HalfToEven;
};

/** Of AsNumber, AsPercent and AsCurrency. */
struct FNumberHistory
{
	FFormatArgumentValue Value;
	/** Without them, the number is shown as its kind is. */
	TOptional<FNumberOptions> Options;
	/** Of AsCurrency, such as "EUR". */
	FString CurrencyCode;
	FString CultureName;
};

/** Of AsDate, AsTime and AsDateTime; what a kind does not show stays as it is here. */
struct FDateTimeHistory
{
	FDateTime Value;
	EDateTimeStyle::Type DateStyle = EDateTimeStyle::Default;
	EDateTimeStyle::Type TimeStyle = EDateTimeStyle::Default;
	/** To which the value, in UTC, is converted; empty for the user's, LocalTimeZone for a value that is shown as it is. */
	FString TimeZone;
	FString CultureName;
};

inline constexpr const TCHAR* LocalTimeZone = TEXT("Etc/Unknown");

/** Of ArgumentFormat, in the order of the file, which may name an argument twice. */
using FArgumentList = TArray<TPair<FString, FFormatArgumentValue>>;

/** What copies of a text share. Never changed once a text holds it. */
struct FTextData
{
	ETextHistoryType Type = ETextHistoryType::None;
	/** What is shown; the source string too, for None and Base. */
	FString Display;
	/** Of Base. For StringTableEntry the key is the table's. */
	FString Namespace;
	FString Key;
	FName TableId;
	/**
	 * The pattern of the formats, what Transform transforms; a text without data otherwise, because the empty text's own data cannot hold an
	 * empty text.
	 */
	FText Source{std::shared_ptr<const FTextData>()};
	/** What else the kind needs. */
	TVariant<FEmptyVariantState, FFormatNamedArguments, FFormatOrderedArguments, FArgumentList, FNumberHistory, FDateTimeHistory,
		ETextTransform>
		History;
};

/** A text of all but what it displays, which is found here; one without parts has it already. */
FText MakeTextOfParts(FTextData&& Parts, uint32 Flags = 0);

/** Whether two texts of one kind were made of the same parts. */
bool ArePartsIdentical(const FTextData& Left, const FTextData& Right, ETextIdenticalModeFlags CompareFlags);

FText MakeBaseText(const FString& Namespace, const FString& Key, FString Source, uint32 Flags = 0);

const TCHAR* GetGenderName(ETextGender Gender);

/** Null for what is no style, such as a file's broken one. */
const TCHAR* GetDateTimeStyleName(EDateTimeStyle::Type Style);

/** Null for what is no mode, such as a file's broken one. */
const TCHAR* GetRoundingModeName(ERoundingMode Mode);

bool IsNumber(const FFormatArgumentValue& Value);

/** The digits that a currency has behind the point. */
int32 GetCurrencyDigits(const FString& CurrencyCode);

FString FormatNumber(const FFormatArgumentValue& Value, const FNumberOptions& Options);
FString FormatNumberOfKind(ETextHistoryType Type, const FNumberHistory& History);
FString FormatDateTimeOfKind(ETextHistoryType Type, const FDateTimeHistory& History);

/** The pattern with its arguments in place. Arguments are looked up by name first, then by number. */
FString FormatPattern(const FString& Pattern, const FFormatNamedArguments& Named, const FFormatOrderedArguments& Ordered);
}
