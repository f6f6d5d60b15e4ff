#pragma once

#include "Containers/Map.h"
#include "Internationalization/Text.h"
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

namespace UE::Core::Private
{
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
	/** Of the formats; a text without data otherwise, because the empty text's own data cannot hold an empty text. */
	FText Pattern{std::shared_ptr<const FTextData>()};
	FFormatNamedArguments Named;
	FFormatOrderedArguments Ordered;
};

FText MakeBaseText(const FString& Namespace, const FString& Key, FString Source, uint32 Flags = 0);

const TCHAR* GetGenderName(ETextGender Gender);

/** The pattern with its arguments in place. Arguments are looked up by name first, then by number. */
FString FormatPattern(const FString& Pattern, const FFormatNamedArguments& Named, const FFormatOrderedArguments& Ordered);
}
