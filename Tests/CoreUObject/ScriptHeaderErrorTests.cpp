#include "ObjectTestSupport.h"

#include "UObject/ScriptHeaderLoader.h"

#include <cstring>

using FScriptHeaderErrors = FObjectTest;

namespace
{
UE::CoreUObject::FScriptHeaderReport LoadHeader(const char* Text, int32 Length)
{
	UE::CoreUObject::FScriptHeaderSource Source;
	Source.Path = TEXT("Test.h");
	Source.Text.Append(reinterpret_cast<const uint8*>(Text), Length);
	return UE::CoreUObject::LoadScriptHeaderSources({Source});
}
}

TEST_F(FScriptHeaderErrors, HeadersThatAreWrongAreReportedWithTheirPlace)
{
	const char* const Headers[] = {
		"// Package: /Script/BadA\nUCLASS()\nclass UBadA : public UNoSuchBase { GENERATED_BODY() };\n",
		"// Package: /Script/BadB\nUCLASS()\nclass UBadB : public UBadB { GENERATED_BODY() };\n",
		"// Package: /Script/BadC\nUCLASS()\nclass UBadC : public UBadC2 { GENERATED_BODY() };\nUCLASS()\nclass UBadC2 : public UBadC { "
		"GENERATED_BODY() };\n",
		"// Package: /Script/BadD\nUSTRUCT()\nstruct FBadD { GENERATED_BODY() UPROPERTY() FBadD Self; };\n",
		"// Package: /Script/BadE\nUSTRUCT()\nstruct FBadE { GENERATED_BODY() UPROPERTY() FBadE2 A; };\nUSTRUCT()\nstruct FBadE2 { "
		"GENERATED_BODY() UPROPERTY() FBadE B; };\n",
		"// Package: /Script/BadF\nUSTRUCT()\nstruct FBadF { GENERATED_BODY() UPROPERTY() TMap<FString> Map; };\n",
		"// Package: /Script/BadG\nUCLASS()\nclass UBadG : public UObject { GENERATED_BODY()\n",
		"// Package: /Script/BadH\nUENUM()\nenum class EBadH : uint8 { A, \"B\" };\n",
	};
	for (const char* const Header : Headers)
	{
		const UE::CoreUObject::FScriptHeaderReport Report = LoadHeader(Header, static_cast<int32>(std::strlen(Header)));
		EXPECT_FALSE(Report.Errors.IsEmpty()) << Header;
		EXPECT_TRUE(Report.Errors.IsEmpty() || Report.Errors[0].StartsWith(TEXT("Test.h:"))) << TCHAR_TO_UTF8(*Report.Errors[0]);
	}
}

TEST_F(FScriptHeaderErrors, EveryCutOffLengthOfAHeaderIsReadOrReported)
{
	const char* const Header =
		"// Package: /Script/CutHeader\nUENUM()\nenum class ECut : uint8 { A, B UMETA(DisplayName = \"b\") };\n"
		"USTRUCT()\nstruct FCutItem { GENERATED_BODY() UPROPERTY(meta = (X = \"y\")) TMap<FName, TArray<int32>> Map; };\n"
		"UCLASS()\nclass UCut : public UObject { GENERATED_BODY() UFUNCTION(BlueprintCallable) void Go(const TArray<FString>& A, int32 B "
		"= 3); };\n";
	const int32 Length = static_cast<int32>(std::strlen(Header));
	for (int32 Cut = 0; Cut < Length; ++Cut)
	{
		LoadHeader(Header, Cut);
	}
	const UE::CoreUObject::FScriptHeaderReport Whole = LoadHeader(Header, Length);
	EXPECT_EQ(Whole.Errors, TArray<FString>());
	EXPECT_TRUE(FindObject<UClass>(nullptr, TEXT("/Script/CutHeader.Cut")));
}
