#pragma once

#include "Containers/StringFwd.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "UObject/UnrealNames.h"

#include <concepts>
#include <type_traits>

// Numbers are stored one higher than they are shown, so that 0 means "no number".
#define NAME_NO_NUMBER_INTERNAL 0
#define NAME_INTERNAL_TO_EXTERNAL(x) ((x)-1)
#define NAME_EXTERNAL_TO_INTERNAL(x) ((x) + 1)
#define NAME_NO_NUMBER NAME_INTERNAL_TO_EXTERNAL(NAME_NO_NUMBER_INTERNAL)

// Characters that names of these kinds may not have.
#define INVALID_NAME_CHARACTERS TEXT("\"' ,\n\r\t")
#define INVALID_OBJECTNAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")
#define INVALID_LONGPACKAGE_CHARACTERS TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")
#define INVALID_OBJECTPATH_CHARACTERS TEXT("\"' ,|&!~\n\r\t@#(){}[]=;^%$`")

class FText;

enum class ENameCase : uint8
{
	CaseSensitive,
	IgnoreCase
};

/** Place of a text in the name table. Equal texts in the same case have the same place for the life of the process. */
struct FNameEntryId
{
	constexpr FNameEntryId() = default;
	constexpr explicit FNameEntryId(ENoInit) {}
	constexpr bool IsNone() const { return Value == 0; }
	constexpr explicit operator bool() const { return Value != 0; }
	/** Order of places: fast, and different in every run. */
	bool FastLess(FNameEntryId Rhs) const { return Value < Rhs.Value; }
	/** Order of the texts without regard to case. */
	CORE_API bool LexicalLess(FNameEntryId Rhs) const;
	CORE_API int32 CompareLexical(FNameEntryId Rhs) const;
	constexpr uint32 ToUnstableInt() const { return Value; }
	static constexpr FNameEntryId FromUnstableInt(uint32 Value)
	{
		FNameEntryId Id;
		Id.Value = Value;
		return Id;
	}
	friend constexpr bool operator==(FNameEntryId Lhs, FNameEntryId Rhs) { return Lhs.Value == Rhs.Value; }
	friend constexpr bool operator!=(FNameEntryId Lhs, FNameEntryId Rhs) { return Lhs.Value != Rhs.Value; }
	friend uint32 GetTypeHash(FNameEntryId Id) { return Id.Value * 2654435769u; }

private:
	uint32 Value = 0;
};

/**
 * A text of up to 1023 characters that is stored once: comparing and copying it costs as much as a number. Comparison ignores case while
 * each name shows the case it was made with. A suffix like "_12" (no leading zeros) is kept as a number beside the text. Safe from any
 * thread.
 */
class CORE_API FName
{
public:
	constexpr FName() = default;
	FName(EName Name);
	FName(EName Name, int32 Number);
	constexpr explicit FName(ENoInit) {}
	FName(const TCHAR* Name, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	FName(const UTF8CHAR* Name, EFindName FindType = FNAME_Add);
	explicit FName(FStringView Name, EFindName FindType = FNAME_Add);
	explicit FName(FAnsiStringView Name, EFindName FindType = FNAME_Add);
	explicit FName(FUtf8StringView Name, EFindName FindType = FNAME_Add);
	FName(int32 Len, const TCHAR* Name, EFindName FindType = FNAME_Add);
	FName(int32 Len, const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	/** The text as it is, with an internal number: nothing is split off. */
	FName(const TCHAR* Name, int32 InNumber, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Name, int32 InNumber, EFindName FindType = FNAME_Add);
	FName(FStringView Name, int32 InNumber, EFindName FindType = FNAME_Add);
	/** The other name's text with another internal number. */
	FName(const FName& Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex)
		, DisplayIndex(Other.DisplayIndex)
		, Number(static_cast<uint32>(InNumber))
	{
	}
	FName(FNameEntryId InComparisonIndex, FNameEntryId InDisplayIndex, int32 InNumber)
		: ComparisonIndex(InComparisonIndex)
		, DisplayIndex(InDisplayIndex)
		, Number(static_cast<uint32>(InNumber))
	{
	}
	template <typename StringType>
	requires(std::is_same_v<StringType, FString>) explicit FName(const StringType& Name, EFindName FindType = FNAME_Add)
		: FName(FStringView(Name), FindType)
	{
	}

	FNameEntryId GetComparisonIndex() const { return ComparisonIndex; }
	FNameEntryId GetDisplayIndex() const { return DisplayIndex; }
	/** The internal number: one more than the one shown, 0 for none. */
	int32 GetNumber() const { return static_cast<int32>(Number); }
	void SetNumber(int32 NewNumber) { Number = static_cast<uint32>(NewNumber); }

	/** The text without the number. */
	[[nodiscard]] FString GetPlainNameString() const;
	[[nodiscard]] FString ToString() const;
	void ToString(FString& Out) const;
	void ToString(FStringBuilderBase& Out) const;
	void AppendString(FString& Out) const;
	void AppendString(FStringBuilderBase& Out) const;
	/** Writes up to `OutSize` characters with the terminator and answers the length without it. */
	uint32 ToString(TCHAR* Out, uint32 OutSize) const;
	[[nodiscard]] uint32 GetStringLength() const;

	constexpr bool IsNone() const { return ComparisonIndex.IsNone() && Number == NAME_NO_NUMBER_INTERNAL; }
	/** False for a name made of memory that never was one. */
	bool IsValid() const;
	bool IsValidIndexFast() const { return IsValid(); }
	/** True when none of `InvalidChars` stands in the name; `OutReason`, where given, tells which do. */
	bool IsValidXName(
		const FString& InvalidChars = INVALID_NAME_CHARACTERS, FText* OutReason = nullptr, const FText* InErrorCtx = nullptr) const;
	bool IsValidXName(FText& OutReason, const FString& InvalidChars = INVALID_NAME_CHARACTERS) const
	{
		return IsValidXName(InvalidChars, &OutReason);
	}
	bool IsValidObjectName(FText& OutReason) const { return IsValidXName(INVALID_OBJECTNAME_CHARACTERS, &OutReason); }
	bool IsValidGroupName(FText& OutReason, bool bIsGroupName = false) const
	{
		return IsValidXName(INVALID_LONGPACKAGE_CHARACTERS, &OutReason);
	}
	static bool IsValidXName(
		const FString& InName, const FString& InInvalidChars, FText* OutReason = nullptr, const FText* InErrorCtx = nullptr);
	/** As the editor shows a name: "bIsOpen" (a bool) is "Is Open", "DrawScale3D" "Draw Scale 3D", "SpawnFromClass" "Spawn from Class". */
	static FString NameToDisplayString(const FString& InDisplayName, bool bIsBool);

	/** Order of the texts without regard to case, then of the numbers. */
	[[nodiscard]] int32 Compare(const FName& Other) const;
	[[nodiscard]] bool LexicalLess(const FName& B) const { return Compare(B) < 0; }
	/** Fast order that differs from run to run. */
	[[nodiscard]] bool FastLess(const FName& B) const
	{
		return ComparisonIndex != B.ComparisonIndex ? ComparisonIndex.FastLess(B.ComparisonIndex) : Number < B.Number;
	}
	[[nodiscard]] int32 CompareIndexes(const FName& Other) const
	{
		return ComparisonIndex == Other.ComparisonIndex ? 0 : (ComparisonIndex.FastLess(Other.ComparisonIndex) ? -1 : 1);
	}
	[[nodiscard]] bool IsEqual(const FName& Other, ENameCase CompareMethod = ENameCase::IgnoreCase, bool bCompareNumber = true) const;

	friend constexpr bool operator==(const FName& Lhs, const FName& Rhs)
	{
		return Lhs.ComparisonIndex == Rhs.ComparisonIndex && Lhs.Number == Rhs.Number;
	}
	friend constexpr bool operator!=(const FName& Lhs, const FName& Rhs) { return !(Lhs == Rhs); }
	friend bool operator==(const FName& Lhs, EName Rhs) { return Lhs == FName(Rhs); }
	friend bool operator!=(const FName& Lhs, EName Rhs) { return !(Lhs == FName(Rhs)); }
	/** Compares with text as the name prints, without making a name of it. */
	bool operator==(const TCHAR* Other) const;
	bool operator!=(const TCHAR* Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FName& Name) { return GetTypeHash(Name.ComparisonIndex) + Name.Number; }

private:
	FNameEntryId ComparisonIndex;
	FNameEntryId DisplayIndex;
	uint32 Number = NAME_NO_NUMBER_INTERNAL;
};

/** Sorts names by their text. */
struct FNameLexicalLess
{
	bool operator()(const FName& A, const FName& B) const { return A.LexicalLess(B); }
};

/** Sorts names fast, in an order that differs from run to run. */
struct FNameFastLess
{
	bool operator()(const FName& A, const FName& B) const { return A.FastLess(B); }
};

[[nodiscard]] inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}

inline void LexFromString(FName& Name, const TCHAR* Text)
{
	Name = FName(Text);
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, const FName& Name)
{
	Name.AppendString(Builder);
	return Builder;
}
