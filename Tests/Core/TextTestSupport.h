#pragma once

#include "Internationalization/Text.h"
#include "Serialization/MemoryWriter.h"

#include <gtest/gtest.h>

#include <string>

inline std::string Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

/** The text's form, as inside another form. */
inline FString Exported(const FText& Text, bool bStripPackageNamespace = false)
{
	FString Result;
	FTextStringHelper::WriteToBuffer(Result, Text, true, bStripPackageNamespace);
	return Result;
}

inline TArray<uint8> Saved(FText Text)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Text;
	EXPECT_FALSE(Writer.IsError());
	return Bytes;
}
