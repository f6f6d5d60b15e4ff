#pragma once

#include "Internationalization/TextData.h"

namespace UE::Core::Private
{
struct FTextMacro;

/** Reads one text form from the left. A macro is read as a whole or not at all; where a smaller step fails, the position has no meaning. */
class FTextReader
{
public:
	/** The namespaces may be null. All three must outlive the reader. */
	FTextReader(const TCHAR* InText, const TCHAR* InTextNamespace, const TCHAR* InPackageNamespace)
		: At(InText)
		, TextNamespace(InTextNamespace)
		, PackageNamespace(InPackageNamespace)
	{
	}

	const TCHAR* GetPosition() const { return At; }

	/** One of the macros; plain strings are the caller's. */
	bool ReadMacro(FText& OutText, int32 Depth = 0);

	/** A string in quotes, with or without TEXT() around it. */
	bool ReadQuoted(FString& OutString);

private:
	void SkipBlanks();
	bool Char(TCHAR Wanted);
	bool Word(FStringView Wanted);
	bool Macro(FStringView Name);
	/** "Enum::Name" */
	template <typename EnumType>
	bool ReadEnumerator(FStringView EnumName, int32 NumValues, const TCHAR* (*GetName)(EnumType), EnumType& OutValue);
	bool ReadSwitch(bool& bOutValue);
	bool ReadInteger(int64 Min, int64 Max, int64& OutValue);
	bool ReadNotFinite(FFormatArgumentValue& OutValue);
	bool ReadNumber(FFormatArgumentValue& OutValue);

	bool ReadLocalized(FText& OutText);
	FString PutPackageNamespace(const FString& Namespace) const;
	bool ReadTable(FText& OutText);
	bool ReadInvariant(FText& OutText);
	bool ReadFormat(FText& OutText, int32 Depth);
	bool ReadMacroOrQuoted(FText& OutText, int32 Depth);
	bool ReadArgument(FFormatArgumentValue& OutValue, int32 Depth);

	bool ReadGenerated(FText& OutText, int32 Depth);
	bool ReadHistory(const FTextMacro& Kind, FTextData& OutParts, int32 Depth);
	bool ReadNumberHistory(const FTextMacro& Kind, FNumberHistory& OutHistory);
	bool ReadNumberOptions(FNumberOptions& OutOptions);
	bool ReadNumberOption(FNumberOptions& OutOptions);
	bool ReadCurrencyHistory(FNumberHistory& OutHistory);
	bool ReadDateTimeHistory(const FTextMacro& Kind, FDateTimeHistory& OutHistory);
	/** The end of a history: its culture's name and the bracket. */
	bool ReadCulture(FString& OutCultureName);

	const TCHAR* At;
	const TCHAR* TextNamespace;
	const TCHAR* PackageNamespace;
};
}
