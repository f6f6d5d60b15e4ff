#pragma once

#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "HAL/FileManager.h"

/** Whole files at once. */
struct CORE_API FFileHelper
{
	enum class EHashOptions
	{
		None = 0
	};

	enum class EEncodingOptions
	{
		/** 8-bit text when all of it is ASCII, else UTF-16. */
		AutoDetect,
		ForceAnsi,
		/** UTF-16 with a byte order mark. */
		ForceUnicode,
		ForceUTF8,
		ForceUTF8WithoutBOM
	};

	/** False when the file cannot be read, or is larger than an array can be. */
	static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags = 0);
	/** Text by its byte order mark: UTF-8 or UTF-16; UTF-8 without one. Bytes that are no text become U+FFFD. */
	static bool LoadFileToString(
		FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None, uint32 ReadFlags = 0);
	static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None);
	static void BufferToString(FString& Result, const uint8* Buffer, int32 Size);

	static bool SaveArrayToFile(
		TArrayView<const uint8> Array, const TCHAR* Filename, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);
	static bool SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect,
		IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);
	/** A line break after each. */
	static bool SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename,
		EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(),
		uint32 WriteFlags = 0);
};
