#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Internationalization/TextKey.h"
#include "Misc/EnumClassFlags.h"
#include "Misc/Optional.h"
#include "UObject/NameTypes.h"

#include <concepts>
#include <memory>
#include <type_traits>

class FArchive;
class FText;
class FTextStringHelper;
class FFormatArgumentValue;
struct FDateTime;
struct FTimespan;

namespace UE::Core::Private
{
struct FTextData;
FText MakeTextOfData(std::shared_ptr<const FTextData> Data, uint32 Flags);
}

using FFormatNamedArguments = TMap<FString, FFormatArgumentValue>;
using FFormatOrderedArguments = TArray<FFormatArgumentValue>;

namespace ETextFlag
{
enum Type : uint32
{
	Transient = 1 << 0,
	CultureInvariant = 1 << 1,
	ConvertedProperty = 1 << 2,
	Immutable = 1 << 3,
	InitializedFromString = 1 << 4
};
}

namespace EFormatArgumentType
{
enum Type : int32
{
	Int,
	UInt,
	Float,
	Double,
	Text,
	Gender,
	None
};
}

enum class ETextComparisonLevel : uint8
{
	Default,
	Primary,
	Secondary,
	Tertiary,
	Quaternary,
	Quinary
};

enum class ETextIdenticalModeFlags : uint8
{
	None = 0,
	DeepCompare = 1 << 0,
	LexicalCompareInvariants = 1 << 1
};
ENUM_CLASS_FLAGS(ETextIdenticalModeFlags);

/** For the `gender` forms of a format: `{Who}|gender(masculine,feminine,neuter)`. */
enum class ETextGender : uint8
{
	Masculine,
	Feminine,
	Neuter
};

namespace EDateTimeStyle
{
enum Type : int32
{
	/** As Medium. */
	Default,
	/** "2/29/24", "1:05 PM" */
	Short,
	/** "Feb 29, 2024", "1:05:09 PM" */
	Medium,
	/** "February 29, 2024", "1:05:09 PM GMT" */
	Long,
	/** "Thursday, February 29, 2024", "1:05:09 PM GMT" */
	Full
};
}

enum class EMemoryUnitStandard : uint8
{
	/** Steps of 1024: KiB, MiB. */
	IEC,
	/** Steps of 1000: kB, MB. */
	SI
};

/** How FText::AsNumber and its kin write a number. */
struct CORE_API FNumberFormattingOptions
{
	bool AlwaysSign = false;
	bool UseGrouping = true;
	int32 MinimumIntegralDigits = 1;
	int32 MaximumIntegralDigits = 324;
	int32 MinimumFractionalDigits = 0;
	int32 MaximumFractionalDigits = 3;

	FNumberFormattingOptions& SetAlwaysSign(bool bValue)
	{
		AlwaysSign = bValue;
		return *this;
	}
	FNumberFormattingOptions& SetUseGrouping(bool bValue)
	{
		UseGrouping = bValue;
		return *this;
	}
	FNumberFormattingOptions& SetMinimumIntegralDigits(int32 Value)
	{
		MinimumIntegralDigits = Value;
		return *this;
	}
	FNumberFormattingOptions& SetMaximumIntegralDigits(int32 Value)
	{
		MaximumIntegralDigits = Value;
		return *this;
	}
	FNumberFormattingOptions& SetMinimumFractionalDigits(int32 Value)
	{
		MinimumFractionalDigits = Value;
		return *this;
	}
	FNumberFormattingOptions& SetMaximumFractionalDigits(int32 Value)
	{
		MaximumFractionalDigits = Value;
		return *this;
	}

	static const FNumberFormattingOptions& DefaultWithGrouping();
	static const FNumberFormattingOptions& DefaultNoGrouping();
};

/**
 * Text for users: a source string with the namespace and key under which it is translated, or the way another text was made of parts. This
 * host has one culture, so what a text displays is its source. Copies share their data; safe to copy between threads.
 */
class CORE_API FText
{
public:
	FText();
	FText(const FText&) = default;
	FText(FText&&) = default;
	FText& operator=(const FText&) = default;
	FText& operator=(FText&&) = default;

	static const FText& GetEmpty();

	/** Text that a user or a program wrote; it has no identity and is not translated. */
	[[nodiscard]] static FText FromString(const FString& String);
	[[nodiscard]] static FText FromString(FString&& String);
	[[nodiscard]] static FText FromStringView(FStringView String) { return FromString(FString(String)); }
	[[nodiscard]] static FText FromName(const class FName& Name);
	/** Text that must never be translated. */
	[[nodiscard]] static FText AsCultureInvariant(const FString& String);
	[[nodiscard]] static FText AsCultureInvariant(FString&& String);
	[[nodiscard]] static FText AsCultureInvariant(FText Text);
	/** Text with an identity made elsewhere, such as a loaded package's. */
	[[nodiscard]] static FText FromNamespaceKeySource(const FString& Namespace, const FString& Key, const FString& Source);
	/** An entry of a string table. This host loads no string tables, so it displays "<MISSING STRING TABLE ENTRY>". */
	[[nodiscard]] static FText FromStringTable(const class FName& TableId, const FString& Key);
	/** The text under another identity. */
	[[nodiscard]] static FText ChangeKey(const FTextKey& Namespace, const FTextKey& Key, const FText& Text);

	[[nodiscard]] static FText AsNumber(int32 Value, const FNumberFormattingOptions* Options = nullptr);
	[[nodiscard]] static FText AsNumber(uint32 Value, const FNumberFormattingOptions* Options = nullptr);
	[[nodiscard]] static FText AsNumber(int64 Value, const FNumberFormattingOptions* Options = nullptr);
	[[nodiscard]] static FText AsNumber(long Value, const FNumberFormattingOptions* Options = nullptr)
	{
		return AsNumber(static_cast<int64>(Value), Options);
	}
	[[nodiscard]] static FText AsNumber(uint64 Value, const FNumberFormattingOptions* Options = nullptr);
	[[nodiscard]] static FText AsNumber(unsigned long Value, const FNumberFormattingOptions* Options = nullptr)
	{
		return AsNumber(static_cast<uint64>(Value), Options);
	}
	[[nodiscard]] static FText AsNumber(float Value, const FNumberFormattingOptions* Options = nullptr);
	[[nodiscard]] static FText AsNumber(double Value, const FNumberFormattingOptions* Options = nullptr);
	/** 0.25 gives "25%". */
	[[nodiscard]] static FText AsPercent(double Value, const FNumberFormattingOptions* Options = nullptr);

	/** A date or a time as English writes it, as it is: this host converts no time zones. */
	[[nodiscard]] static FText AsDate(const FDateTime& DateTime, EDateTimeStyle::Type DateStyle = EDateTimeStyle::Default);
	[[nodiscard]] static FText AsTime(const FDateTime& DateTime, EDateTimeStyle::Type TimeStyle = EDateTimeStyle::Default);
	[[nodiscard]] static FText AsDateTime(const FDateTime& DateTime, EDateTimeStyle::Type DateStyle = EDateTimeStyle::Default,
		EDateTimeStyle::Type TimeStyle = EDateTimeStyle::Default);
	/** "25:03:09" */
	[[nodiscard]] static FText AsTimespan(const FTimespan& Timespan);
	/** "1.5 KiB" */
	[[nodiscard]] static FText AsMemory(uint64 NumBytes, const FNumberFormattingOptions* Options = nullptr,
		EMemoryUnitStandard UnitStandard = EMemoryUnitStandard::IEC);

	/**
	 * Replaces `{Name}`; a backquote escapes. A name without an argument stays as it is. The result remembers its parts. Behind an
	 * argument, `|plural(one=...,other=...)` and `|ordinal(one=st,two=nd,few=rd,other=th)` choose by its number, as English does, and
	 * `|gender(masculine,feminine,neuter)` by its gender. A choice is a pattern itself, in quotes where it has a comma or a bracket.
	 */
	[[nodiscard]] static FText Format(FText Fmt, const FFormatNamedArguments& InArguments);
	[[nodiscard]] static FText Format(FText Fmt, FFormatNamedArguments&& InArguments);
	[[nodiscard]] static FText Format(FText Fmt, const FFormatOrderedArguments& InArguments);
	[[nodiscard]] static FText Format(FText Fmt, FFormatOrderedArguments&& InArguments);
	template <typename... ArgumentTypes>
	requires(sizeof...(ArgumentTypes) > 0 && (std::constructible_from<FFormatArgumentValue, ArgumentTypes&&> && ...))
		[[nodiscard]] static FText Format(FText Fmt, ArgumentTypes&&... Arguments);
	/** Pairs of a name and a value. */
	template <typename... ArgumentTypes>
	[[nodiscard]] static FText FormatNamed(FText Fmt, ArgumentTypes&&... Arguments);
	template <typename... ArgumentTypes>
	[[nodiscard]] static FText FormatOrdered(FText Fmt, ArgumentTypes&&... Arguments);
	/** The names between the braces of a pattern, each once, in their order. */
	static void GetFormatPatternParameters(const FText& Fmt, TArray<FString>& ParameterNames);
	[[nodiscard]] static FText Join(const FText& Delimiter, const TArray<FText>& Texts);
	template <typename... ArgumentTypes>
	requires((std::same_as<std::remove_cvref_t<ArgumentTypes>, FText> && ...))
		[[nodiscard]] static FText Join(const FText& Delimiter, ArgumentTypes&&... Texts)
	{
		return Join(Delimiter, TArray<FText>({Texts...}));
	}
	[[nodiscard]] static FText TrimPreceding(const FText& Text);
	[[nodiscard]] static FText TrimTrailing(const FText& Text);
	[[nodiscard]] static FText TrimPrecedingAndTrailing(const FText& Text);

	/** What is displayed. Valid as long as the text lives and is not assigned to. */
	[[nodiscard]] const FString& ToString() const;
	/** The display string in the source culture. */
	[[nodiscard]] FString BuildSourceString() const;
	[[nodiscard]] bool IsEmpty() const { return ToString().IsEmpty(); }
	[[nodiscard]] bool IsEmptyOrWhitespace() const;
	[[nodiscard]] bool IsNumeric() const { return ToString().IsNumeric(); }
	[[nodiscard]] FText ToLower() const;
	[[nodiscard]] FText ToUpper() const;

	[[nodiscard]] int32 CompareTo(const FText& Other, ETextComparisonLevel Level = ETextComparisonLevel::Default) const;
	[[nodiscard]] int32 CompareToCaseIgnored(const FText& Other) const;
	[[nodiscard]] bool EqualTo(const FText& Other, ETextComparisonLevel Level = ETextComparisonLevel::Default) const
	{
		return CompareTo(Other, Level) == 0;
	}
	[[nodiscard]] bool EqualToCaseIgnored(const FText& Other) const { return CompareToCaseIgnored(Other) == 0; }
	/** True when both are the same text: the same data or the same identity. */
	[[nodiscard]] bool IdenticalTo(const FText& Other, ETextIdenticalModeFlags Flags = ETextIdenticalModeFlags::None) const;

	[[nodiscard]] bool IsCultureInvariant() const;
	[[nodiscard]] bool IsTransient() const;
	[[nodiscard]] bool IsInitializedFromString() const;
	[[nodiscard]] bool IsFromStringTable() const;
	[[nodiscard]] bool ShouldGatherForLocalization() const;
	/** The flags as packages keep them; see ETextFlag. */
	[[nodiscard]] uint32 GetFlags() const { return Flags; }

	/**
	 * The engine's binary form, which `Ar << Text` gives: flags, history kind, and what the kind needs. A kind or argument that is not
	 * known sets the archive's error, as does text nested deeper than any real one.
	 */
	static void SerializeText(FArchive& Ar, FText& Text);

private:
	friend class FTextInspector;
	friend class FTextStringHelper;
	friend struct UE::Core::Private::FTextData;
	friend FText UE::Core::Private::MakeTextOfData(std::shared_ptr<const UE::Core::Private::FTextData> Data, uint32 Flags);

	explicit FText(std::shared_ptr<const UE::Core::Private::FTextData> InData, uint32 InFlags = 0)
		: Data(std::move(InData))
		, Flags(InFlags)
	{
	}

	std::shared_ptr<const UE::Core::Private::FTextData> Data;
	uint32 Flags = 0;
};

/** One value of FText::Format(). */
class CORE_API FFormatArgumentValue
{
public:
	FFormatArgumentValue();
	FFormatArgumentValue(int32 Value);
	FFormatArgumentValue(uint32 Value);
	FFormatArgumentValue(int64 Value);
	FFormatArgumentValue(long Value)
		: FFormatArgumentValue(static_cast<int64>(Value))
	{
	}
	FFormatArgumentValue(uint64 Value);
	FFormatArgumentValue(unsigned long Value)
		: FFormatArgumentValue(static_cast<uint64>(Value))
	{
	}
	FFormatArgumentValue(float Value);
	FFormatArgumentValue(double Value);
	FFormatArgumentValue(FText Value);
	FFormatArgumentValue(ETextGender Value);

	EFormatArgumentType::Type GetType() const { return Type; }
	int64 GetIntValue() const { return IntValue; }
	uint64 GetUIntValue() const { return static_cast<uint64>(IntValue); }
	float GetFloatValue() const { return static_cast<float>(DoubleValue); }
	double GetDoubleValue() const { return DoubleValue; }
	const FText& GetTextValue() const { return TextValue; }
	ETextGender GetGenderValue() const { return static_cast<ETextGender>(IntValue); }
	/** The number, whatever its type; 0 for what is none. */
	double GetNumber() const;
	/** The value as a format shows it. */
	FString ToFormattedString() const;
	/** The value as a text's exported form writes it. */
	FString ToExportedString() const;
	bool IdenticalTo(const FFormatArgumentValue& Other, ETextIdenticalModeFlags Flags) const;

	CORE_API friend FArchive& operator<<(FArchive& Ar, FFormatArgumentValue& Value);

private:
	EFormatArgumentType::Type Type = EFormatArgumentType::None;
	int64 IntValue = 0;
	double DoubleValue = 0;
	FText TextValue;
};

using FFormatArgumentData = FFormatArgumentValue;

template <typename... ArgumentTypes>
requires(sizeof...(ArgumentTypes) > 0 && (std::constructible_from<FFormatArgumentValue, ArgumentTypes&&> && ...))
	FText FText::Format(FText Fmt, ArgumentTypes&&... Arguments)
{
	FFormatOrderedArguments Ordered;
	Ordered.Reserve(sizeof...(ArgumentTypes));
	(Ordered.Emplace(Forward<ArgumentTypes>(Arguments)), ...);
	return Format(MoveTemp(Fmt), MoveTemp(Ordered));
}

template <typename... ArgumentTypes>
FText FText::FormatOrdered(FText Fmt, ArgumentTypes&&... Arguments)
{
	return Format(MoveTemp(Fmt), Forward<ArgumentTypes>(Arguments)...);
}

namespace UE::Core::Private
{
inline void AddNamedArguments(FFormatNamedArguments&) {}

template <typename NameType, typename ValueType, typename... RestTypes>
void AddNamedArguments(FFormatNamedArguments& Named, NameType&& Name, ValueType&& Value, RestTypes&&... Rest)
{
	Named.Add(FString(Forward<NameType>(Name)), FFormatArgumentValue(Forward<ValueType>(Value)));
	AddNamedArguments(Named, Forward<RestTypes>(Rest)...);
}

CORE_API FText MakeLocalizedText(const TCHAR* Text, const TCHAR* Namespace, const TCHAR* Key);
}

template <typename... ArgumentTypes>
FText FText::FormatNamed(FText Fmt, ArgumentTypes&&... Arguments)
{
	static_assert(sizeof...(ArgumentTypes) % 2 == 0, "FormatNamed takes pairs of a name and a value");
	FFormatNamedArguments Named;
	UE::Core::Private::AddNamedArguments(Named, Forward<ArgumentTypes>(Arguments)...);
	return Format(MoveTemp(Fmt), MoveTemp(Named));
}

/** Looks into texts. */
class CORE_API FTextInspector
{
public:
	/** Has no value for a text without identity. */
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
	static FTextId GetTextId(const FText& Text);
	/** Null for a text that was made of parts. */
	static const FString* GetSourceString(const FText& Text);
	static const FString& GetDisplayString(const FText& Text) { return Text.ToString(); }
	static uint32 GetFlags(const FText& Text) { return Text.GetFlags(); }
	static bool ShouldGatherForLocalization(const FText& Text) { return Text.ShouldGatherForLocalization(); }
	static bool GetTableIdAndKey(const FText& Text, class FName& OutTableId, FString& OutKey);
};

/** Texts in the text forms that properties, graph text and configuration files use. */
class CORE_API FTextStringHelper
{
public:
	/**
	 * Reads NSLOCTEXT, LOCTEXT, LOCTABLE, INVTEXT, the LOCGEN_FORMAT forms, or (with `bRequiresQuotes` in quotes) a plain string.
	 * Answers where the text ends, or null where there is none. `TextNamespace`, where given, is that of LOCTEXT.
	 */
	static const TCHAR* ReadFromBuffer(const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace = nullptr,
		const TCHAR* PackageNamespace = nullptr, bool bRequiresQuotes = false);
	/** The whole of `Buffer` as a text: one of the forms, else the buffer as a plain string. */
	static FText CreateFromBuffer(
		const TCHAR* Buffer, const TCHAR* TextNamespace = nullptr, const TCHAR* PackageNamespace = nullptr, bool bRequiresQuotes = false);
	/** Appends the text's form. */
	static void WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes = false, bool bStripPackageNamespace = false);
	/** True when the buffer begins with one of the forms' macros. */
	static bool IsComplexText(const TCHAR* Buffer);
};

/** A pattern for FText::Format that is kept, such as by a class. */
class FTextFormat
{
public:
	FTextFormat() = default;
	FTextFormat(FText InText)
		: Text(MoveTemp(InText))
	{
	}

	static FTextFormat FromString(FString InString) { return FTextFormat(FText::AsCultureInvariant(MoveTemp(InString))); }
	const FText& GetSourceText() const { return Text; }
	const FString& GetSourceString() const { return Text.ToString(); }
	void GetFormatArgumentNames(TArray<FString>& OutArgumentNames) const { FText::GetFormatPatternParameters(Text, OutArgumentNames); }
	bool IdenticalTo(const FTextFormat& Other, ETextIdenticalModeFlags Flags) const { return Text.IdenticalTo(Other.Text, Flags); }
	operator const FText&() const { return Text; }

private:
	FText Text;
};

/** A text of lines, of which those inside are indented. */
class CORE_API FTextBuilder
{
public:
	void Indent() { ++IndentCount; }
	void Unindent() { --IndentCount; }
	void AppendLine() { Lines.Add(FText()); }
	void AppendLine(const FText& Text);
	void AppendLine(const FString& String) { AppendLine(FText::FromString(String)); }
	void AppendLine(const FName& Name) { AppendLine(FText::FromName(Name)); }
	template <typename... ArgumentTypes>
	void AppendLineFormat(const FTextFormat& Pattern, ArgumentTypes&&... Arguments)
	{
		AppendLine(FText::Format(Pattern.GetSourceText(), Forward<ArgumentTypes>(Arguments)...));
	}
	void Clear() { Lines.Reset(); }
	bool IsEmpty() const { return Lines.IsEmpty(); }
	int32 GetNumLines() const { return Lines.Num(); }
	/** Four spaces for every indent. */
	[[nodiscard]] FText ToText() const;

private:
	TArray<FText> Lines;
	int32 IndentCount = 0;
};

#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) \
	(::UE::Core::Private::MakeLocalizedText(TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey)))
/** Uses the file's LOCTEXT_NAMESPACE. */
#define LOCTEXT(InKey, InTextLiteral) NSLOCTEXT(LOCTEXT_NAMESPACE, InKey, InTextLiteral)
#define INVTEXT(InTextLiteral) (FText::AsCultureInvariant(FString(TEXT(InTextLiteral))))
#define LOCTABLE(InTableId, InKey) (FText::FromStringTable(FName(TEXT(InTableId)), FString(TEXT(InKey))))

[[nodiscard]] inline FString LexToString(const FText& Value)
{
	return Value.ToString();
}
