#pragma once

#include "PackageInspector.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "UObject/LinkerLoad.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

using FBytes = std::vector<uint8>;
using FObjects = std::vector<TSharedPtr<FJsonObject>>;

/** The objects of a list; none where there is no such list. */
inline FObjects GetObjects(const FJsonObject& Owner, const TCHAR* List)
{
	FObjects Objects;
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (Owner.TryGetArrayField(List, Values))
	{
		for (const TSharedPtr<FJsonValue>& Value : *Values)
		{
			Objects.push_back(Value->AsObject());
		}
	}
	return Objects;
}

inline std::filesystem::path GetSamples()
{
	return std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages";
}

inline std::vector<std::filesystem::path> ListSamples()
{
	std::vector<std::filesystem::path> Samples;
	std::error_code Missing;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(GetSamples(), Missing))
	{
		if (Entry.path().extension() == ".uasset" || Entry.path().extension() == ".umap")
		{
			Samples.push_back(Entry.path());
		}
	}
	return Samples;
}

inline FBytes ReadFile(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	return FBytes(std::istreambuf_iterator<char>(Stream), {});
}

class FInspectorTest : public testing::Test
{
public:
	void SetUp() override
	{
		ProcessNewlyLoadedUObjects();
		if (ListSamples().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
	}

	/** Null, with the reason, when the tables are refused. */
	static TSharedPtr<FJsonObject> Inspect(const FBytes& Bytes, TArray<FString>& OutErrors)
	{
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(Bytes.data(), int32(Bytes.size())), TEXT("bytes"), nullptr, Error);
		if (!Linker)
		{
			OutErrors.Add(Error);
			return nullptr;
		}
		return InspectPackage(*Linker, OutErrors);
	}

	static TSharedPtr<FJsonObject> InspectSample(const char* Sample)
	{
		TArray<FString> Errors;
		const TSharedPtr<FJsonObject> Document = Inspect(ReadFile(GetSamples() / Sample), Errors);
		EXPECT_TRUE(Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
		return Document;
	}

	static TSharedPtr<FJsonObject> FindObject(const TSharedPtr<FJsonObject>& Document, const TCHAR* List, const TCHAR* Field, const FString& Value)
	{
		const TArray<TSharedPtr<FJsonValue>>* Objects = nullptr;
		if (Document && Document->TryGetArrayField(List, Objects))
		{
			for (const TSharedPtr<FJsonValue>& Object : *Objects)
			{
				if (Object->AsObject()->GetStringField(Field) == Value)
				{
					return Object->AsObject();
				}
			}
		}
		ADD_FAILURE() << "no " << TCHAR_TO_UTF8(*Value);
		return MakeShared<FJsonObject>();
	}
};
