#include "HeaderParser/Parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
using namespace HeaderParser;
using FLines = std::vector<std::string>;

FLines ErrorsOf(const FParseResult& Result)
{
	FLines Lines;
	for (const FDiagnostic& Error : Result.Errors)
	{
		Lines.push_back(FormatDiagnostic("X.h", Error));
	}
	return Lines;
}

TEST(Recovery, EveryMistakenMemberIsToldAndTheOthersAreRead)
{
	const FParseResult Result = ParseHeader(R"(UCLASS()
class UThing : public UObject
{
	GENERATED_BODY()
	UPROPERTY()
	int32 Good = 1;
	UPROPERTY(Typo)
	int32 Bad;
	UPROPERTY()
	TQueue<int32> Queue;
	UFUNCTION()
	void Use(int32);
	UFUNCTION()
	void Close(bool bFast = true) { if (bFast) { Run(); } }
	UPROPERTY()
	UObject Object;
	UPROPERTY()
	FString Last;
};
)");
	EXPECT_EQ(ErrorsOf(Result), (FLines{
									"X.h:7:12: error: expected a property specifier, found 'Typo'",
									"X.h:10:2: error: expected a reflected type, found the template 'TQueue'",
									"X.h:12:16: error: expected a parameter's name, found ')'",
									"X.h:16:10: error: expected '*' after the object class 'UObject', found 'Object'",
								}));
	ASSERT_EQ(Result.Header.Classes.size(), 1u);
	const FClassDeclaration& Class = Result.Header.Classes[0];
	ASSERT_EQ(Class.Properties.size(), 2u);
	EXPECT_EQ(Class.Properties[0].Name, "Good");
	EXPECT_EQ(Class.Properties[1].Name, "Last");
	ASSERT_EQ(Class.Functions.size(), 1u);
	EXPECT_EQ(Class.Functions[0].Name, "Close");
}

TEST(Recovery, DeclarationsBehindAMistakenOneAreRead)
{
	const FParseResult Result = ParseHeader(R"(USTRUCT()
struct Wrong
{
	GENERATED_BODY()
	UPROPERTY()
	int32 A;
};
UENUM()
enum class EGood : uint8 { A };
UENUM()
enum class EBad : uint8 { A = };
DECLARE_DYNAMIC_DELEGATE_OneParam(FBad, int32);
DECLARE_DYNAMIC_DELEGATE_OneParam(FGood, int32, Value);
USTRUCT()
struct FGoodStruct
{
	GENERATED_BODY()
};
)");
	const FLines Errors = ErrorsOf(Result);
	ASSERT_EQ(Errors.size(), 3u) << testing::PrintToString(Errors);
	EXPECT_EQ(Errors[0], "X.h:2:8: error: expected a struct name that begins with F, found 'Wrong'");
	EXPECT_EQ(Errors[1], "X.h:11:31: error: expected the value of 'A', found '}'");
	EXPECT_EQ(Errors[2], "X.h:12:46: error: expected ',', found ')'");
	ASSERT_EQ(Result.Header.Structs.size(), 1u);
	EXPECT_EQ(Result.Header.Structs[0].Name, "FGoodStruct");
	ASSERT_EQ(Result.Header.Enums.size(), 1u);
	EXPECT_EQ(Result.Header.Enums[0].Name, "EGood");
	ASSERT_EQ(Result.Header.Delegates.size(), 1u);
	EXPECT_EQ(Result.Header.Delegates[0].Name, "FGood");
}

TEST(Recovery, AClassWithoutItsEndIsToldWhereTheNextBegins)
{
	const FParseResult Result = ParseHeader(R"(UCLASS()
class UOpen : public UObject
{
	GENERATED_BODY()
	void Inline() { if (true) {
	}
UCLASS()
class UNext : public UObject
{
	GENERATED_BODY()
};
)");
	ASSERT_FALSE(Result.Errors.empty());
	ASSERT_EQ(Result.Header.Classes.size(), 1u);
	EXPECT_EQ(Result.Header.Classes[0].Name, "UNext");
	const FParseResult Simple =
		ParseHeader("UCLASS()\nclass UOpen : public UObject\n{\n\tGENERATED_BODY()\nUENUM()\nenum class ENext : uint8 { A };\n");
	EXPECT_EQ(ErrorsOf(Simple), (FLines{"X.h:5:1: error: expected '}' at the end of 'UOpen', found 'UENUM'"}));
	EXPECT_EQ(Simple.Header.Enums.size(), 1u);
}

TEST(Recovery, ErrorsAreAtMostAHundred)
{
	std::string Text;
	for (int32_t Index = 0; Index < 5000; ++Index)
	{
		Text += "UENUM()\nenum class Bad\n";
	}
	EXPECT_EQ(ParseHeader(Text).Errors.size(), 100u);
	std::string Members = "UCLASS()\nclass UThing : public UObject\n{\n";
	for (int32_t Index = 0; Index < 5000; ++Index)
	{
		Members += "UPROPERTY()\nint32;\n";
	}
	EXPECT_EQ(ParseHeader(Members).Errors.size(), 100u);
}

/** Declarations as projects write them: each is read without an error, as one property or function. */
struct FAcceptedCase
{
	const char* Name;
	const char* Member;
};

constexpr FAcceptedCase Accepted[] = {
	{"MapOfWrapped",
		"UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = \"A\") TMap<FGameplayTag, TObjectPtr<class UThing>> Things;"},
	{"ArrayOfSoft", "UPROPERTY(EditDefaultsOnly) TArray<TSoftObjectPtr<UTexture2D>> Textures;"},
	{"ArrayOfNamespacedEnum", "UPROPERTY() TArray<TEnumAsByte<EOld::Type>> Kinds;"},
	{"SetOfSubclasses", "UPROPERTY() TSet<TSubclassOf<AActor>> Classes;"},
	{"Interface", "UPROPERTY() TScriptInterface<IUsable> Usable;"},
	{"ConstObject", "UPROPERTY() TObjectPtr<const UThing> Thing = nullptr;"},
	{"EastConstObject", "UPROPERTY() UThing const* Thing = nullptr;"},
	{"AllowPrivate", "UPROPERTY(BlueprintReadOnly, meta = (AllowPrivateAccess = \"true\")) TObjectPtr<UThing> Thing;"},
	{"BareMeta",
		"UPROPERTY(EditAnywhere, meta = (ClampMin = -1.5, UIMax = 10, InlineEditConditionToggle, EditCondition = \"bA && !bB\")) float X;"},
	{"JoinedMeta", "UPROPERTY(EditAnywhere, meta = (ToolTip = \"one \" \"two\")) float X;"},
	{"BitField", "UPROPERTY(EditAnywhere) uint8 bOn : 1 = true;"},
	{"NamedDim", "UPROPERTY() int32 Values[static_cast<int32>(EThing::Count)];"},
	{"BraceInitialiser", "UPROPERTY() FVector At{1.0, 2.0, 3.0};"},
	{"LambdaInitialiser", "UPROPERTY() int32 X = [] { return 1; }();"},
	{"Replicated", "UPROPERTY(ReplicatedUsing = OnRep_Health, Transient) float Health = 100.f;"},
	{"Deprecated", "UPROPERTY() UE_DEPRECATED(5.1, \"Use Y, not X; (really)\") int32 X_DEPRECATED;"},
	{"DeprecatedBefore", "UE_DEPRECATED(5.1, \"Use Y\") UPROPERTY() int32 X;"},
	{"Config", "UPROPERTY(Config, EditAnywhere, meta = (ConfigRestartRequired = true)) FSoftClassPath Class;"},
	{"Instanced", "UPROPERTY(Instanced, EditAnywhere) TArray<TObjectPtr<UThing>> Parts;"},
	{"Assignable", "UPROPERTY(BlueprintAssignable) FOnUsed OnUsed;"},
	{"Optional", "UPROPERTY() TOptional<FVector> Where;"},
	{"FieldPath", "UPROPERTY() TFieldPath<FProperty> Path;"},
	{"ConstFunction", "UFUNCTION(BlueprintPure, Category = \"A|B\") float GetHealth() const;"},
	{"InlineFunction", "UFUNCTION(BlueprintCallable) FORCEINLINE int32 Get() const { return X > 0 ? X : (0); }"},
	{"ApiFunction", "UFUNCTION(BlueprintCallable) static GAME_API UThing* Make(UObject* Outer, TSubclassOf<UThing> Class);"},
	{"RefParameter",
		"UFUNCTION(BlueprintCallable) void Fill(UPARAM(ref, DisplayName = \"the list\") TArray<FPart>& Parts, UPARAM(meta = (A = \"b\")) "
		"int32 N);"},
	{"ConstRefParameter",
		"UFUNCTION(BlueprintCallable) void Take(const TMap<FName, FString>& Map, const FPart& Part, const TArray<UThing*>& Things);"},
	{"Defaults",
		"UFUNCTION(BlueprintCallable) void D(FVector V = FVector(1.f, 2.f, 3.f), FLinearColor C = FLinearColor(0, 0, 0, 1), EDoor E = "
		"EDoor::Open, const FString& S = TEXT(\"a, b)\"), UObject* O = nullptr, FName N = NAME_None);"},
	{"DisplayNamedReturn", "UFUNCTION(BlueprintCallable) UPARAM(DisplayName = \"Done\") bool Try();"},
	{"Latent",
		"UFUNCTION(BlueprintCallable, meta = (Latent, LatentInfo = \"Info\", WorldContext = \"World\")) static void Wait(const UObject* "
		"World, float T, FLatentActionInfo Info);"},
	{"ExpandAsExecs", "UFUNCTION(BlueprintCallable, meta = (ExpandEnumAsExecs = \"Result\")) void Branch(EDoor& Result);"},
	{"PureVirtual", "UFUNCTION(BlueprintCallable) virtual void Run() const PURE_VIRTUAL(UThing::Run, );"},
	{"PureVirtualValue", "UFUNCTION(BlueprintCallable) virtual int32 Run(int32 A) PURE_VIRTUAL(UThing::Run, return A; );"},
	{"Override", "UFUNCTION() virtual void BeginPlay() override;"},
	{"NativeEvent",
		"UFUNCTION(BlueprintNativeEvent, BlueprintCallable) void Hit(const FHitResult& Hit); virtual void Hit_Implementation(const "
		"FHitResult& Hit);"},
	{"ServerCall", "UFUNCTION(Server, Reliable, WithValidation) void ServerUse(AActor* Target);"},
	{"Exec", "UFUNCTION(Exec) void Cheat(const FString& Text);"},
	{"CallInEditor", "UFUNCTION(CallInEditor, Category = Tools) void Rebuild();"},
	{"ElaboratedTypes", "UFUNCTION() void Take(class UThing* Thing, enum EDoor Door, const struct FPart& Part);"},
	{"DelegateParameter",
		"UFUNCTION(BlueprintCallable) void Bind(const FOnThing& Delegate, UPARAM(DisplayName = \"Event\") FOnThing Other);"},
	{"Nodiscard", "UFUNCTION(BlueprintCallable) [[nodiscard]] bool Check() const;"},
};

class AcceptedTest : public testing::TestWithParam<FAcceptedCase>
{
};

TEST_P(AcceptedTest, IsReadAsOneMember)
{
	const FParseResult Result = ParseHeader(
		std::string("UCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\npublic:\n") + GetParam().Member + "\n};\n");
	EXPECT_EQ(ErrorsOf(Result), FLines());
	ASSERT_EQ(Result.Header.Classes.size(), 1u);
	EXPECT_EQ(Result.Header.Classes[0].Properties.size() + Result.Header.Classes[0].Functions.size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Members, AcceptedTest, testing::ValuesIn(Accepted),
	[](const auto& Info)
	{ return std::string(Info.param.Name); });
}
