#include "HeaderParser/Flags.h"
#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

namespace
{
using namespace HeaderParser;

/** Kind, name and arguments in one line: "Map(Name, Array(Object:UFoo))". */
std::string Describe(const FTypeReference& Type)
{
	static constexpr const char* KindNames[] = {"Void", "Bool", "Byte", "Int8", "Int16", "Int", "Int64", "UInt16", "UInt32", "UInt64",
		"Float", "Double", "Name", "String", "Text", "Object", "WeakObject", "LazyObject", "SoftObject", "Class", "SoftClass", "Interface",
		"EnumAsByte", "Named", "Array", "Set", "Map", "Optional", "FieldPath"};
	std::string Text = KindNames[static_cast<size_t>(Type.Kind)];
	Text += Type.Name.empty() ? "" : ":" + Type.Name;
	std::string Arguments;
	for (const FTypeReference& Argument : Type.Arguments)
	{
		Arguments += (Arguments.empty() ? "" : ", ") + Describe(Argument);
	}
	return Arguments.empty() ? Text : Text + "(" + Arguments + ")";
}

FParseResult ParseMember(const std::string& Member) { return ParseHeader("USTRUCT()\nstruct FThing\n{\nUPROPERTY()\n" + Member + "\n};"); }

struct FTypeCase
{
	const char* Declaration;
	const char* Description;
	const char* CppText;
};

class TypeReferenceTest : public testing::TestWithParam<FTypeCase>
{
};

TEST_P(TypeReferenceTest, IsReadFromItsCppSpelling)
{
	const FParseResult Result = ParseMember(std::string(GetParam().Declaration) + " X;");
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	const FTypeReference& Type = Result.Header.Structs.at(0).Properties.at(0).Type;
	EXPECT_EQ(Describe(Type), GetParam().Description);
	EXPECT_EQ(Type.CppText, GetParam().CppText);
}

const FTypeCase TypeCases[] = {
	{"int8", "Int8", "int8"},
	{"uint8", "Byte", "uint8"},
	{"int", "Int", "int"},
	{"uint64", "UInt64", "uint64"},
	{"::FVector", "Named:FVector", "FVector"},
	{"struct FHitResult", "Named:FHitResult", "FHitResult"},
	{"enum EWay", "Named:EWay", "EWay"},
	{"UE::Math::FThing", "Named:FThing", "UE::Math::FThing"},
	{"ESide::Type", "Named:ESide", "ESide::Type"},
	{"class AActor*", "Object:AActor", "AActor*"},
	{"const UTexture *", "Object:UTexture", "UTexture*"},
	{"UTexture const*", "Object:UTexture", "UTexture*"},
	{"UClass*", "Class:UObject", "UClass*"},
	{"TObjectPtr<UClass>", "Object:UClass", "TObjectPtr<UClass>"},
	{"TObjectPtr<const class UTexture>", "Object:UTexture", "TObjectPtr<const UTexture>"},
	{"TSubclassOf<class AActor>", "Class:AActor", "TSubclassOf<AActor>"},
	{"TSoftObjectPtr<UWorld>", "SoftObject:UWorld", "TSoftObjectPtr<UWorld>"},
	{"TSoftClassPtr<AActor>", "SoftClass:AActor", "TSoftClassPtr<AActor>"},
	{"TWeakObjectPtr<AActor>", "WeakObject:AActor", "TWeakObjectPtr<AActor>"},
	{"TLazyObjectPtr<AActor>", "LazyObject:AActor", "TLazyObjectPtr<AActor>"},
	{"TScriptInterface<class IUsable>", "Interface:IUsable", "TScriptInterface<IUsable>"},
	{"TEnumAsByte<enum ESide::Type>", "EnumAsByte:ESide", "TEnumAsByte<ESide::Type>"},
	{"TEnumAsByte<ECollisionChannel>", "EnumAsByte:ECollisionChannel", "TEnumAsByte<ECollisionChannel>"},
	{"TFieldPath<FProperty>", "FieldPath:FProperty", "TFieldPath<FProperty>"},
	{"TOptional<FVector>", "Optional(Named:FVector)", "TOptional<FVector>"},
	{"TArray< const UTexture* >", "Array(Object:UTexture)", "TArray<const UTexture*>"},
	{"TArray<TObjectPtr<UFoo>>", "Array(Object:UFoo)", "TArray<TObjectPtr<UFoo>>"},
	{"TArray<int32, FMemoryImageAllocator>", "Array(Int)", "TArray<int32, FMemoryImageAllocator>"},
	{"TMap<FName,TSubclassOf<AActor> >", "Map(Name, Class:AActor)", "TMap<FName, TSubclassOf<AActor>>"},
	{"TMap<TEnumAsByte<ESide::Type>, TObjectPtr<UFoo>>", "Map(EnumAsByte:ESide, Object:UFoo)",
		"TMap<TEnumAsByte<ESide::Type>, TObjectPtr<UFoo>>"},
	{"TSet<TSoftObjectPtr<UFoo>>", "Set(SoftObject:UFoo)", "TSet<TSoftObjectPtr<UFoo>>"},
};

INSTANTIATE_TEST_SUITE_P(Spellings, TypeReferenceTest, testing::ValuesIn(TypeCases));

struct FBadTypeCase
{
	const char* Member;
	/** The member stands on line 5. */
	const char* Error;
};

class BadTypeTest : public testing::TestWithParam<FBadTypeCase>
{
};

TEST_P(BadTypeTest, IsRefusedWhereItStands)
{
	const FParseResult Result = ParseMember(GetParam().Member);
	ASSERT_EQ(Result.Errors.size(), 1u);
	EXPECT_EQ(FormatDiagnostic("X.h", Result.Errors[0]), std::string("X.h:5:") + GetParam().Error);
}

const FBadTypeCase BadTypes[] = {
	{"int32* X;", "6: error: expected a value, as only objects are pointed to, found '*'"},
	{"FVector* X;", "1: error: expected an object class before '*', found 'FVector'"},
	{"UFoo** X;", "6: error: expected a pointer to an object, found '*'"},
	{"TObjectPtr<UFoo>* X;", "17: error: expected a property's name, found '*'"},
	{"FVector& X;", "1: error: expected a property's type, found 'void' or a reference"},
	{"FVector&& X;", "9: error: expected a value or a reference, found '&'"},
	{"void X;", "1: error: expected a property's type, found 'void' or a reference"},
	{"TMap<FName> X;", "11: error: expected ',', found '>'"},
	{"TArray<> X;", "8: error: expected a type, found '>'"},
	{"TArray<int32, TInlineAllocator<4>> X;", "31: error: expected an allocator without arguments, found '<'"},
	{"TSharedPtr<FFoo> X;", "1: error: expected a reflected type, found the template 'TSharedPtr'"},
	{"TArray<AActor> X;", "14: error: expected '*' after the object class 'AActor', found '>'"},
	{"int32 A, B;", "8: error: expected ';', found ','"},
	{"int32 : 1;", "7: error: expected a property's name, found ':'"},
	{"int32 X : 1;", "11: error: expected a bit-field of one bit of an unsigned type, found '1'"},
	{"uint8 X : 2;", "11: error: expected a bit-field of one bit of an unsigned type, found '2'"},
	{"int32 X[4;", "10: error: expected ']', found ';'"},
};

INSTANTIATE_TEST_SUITE_P(Mistakes, BadTypeTest, testing::ValuesIn(BadTypes));

TEST(Members, ArrayDimensionIsANumberWhereItIsWrittenAsOne)
{
	const FParseResult Result = ParseMember("int32 Fixed[16];\nUPROPERTY() float ByEnum[ESide::Max + 1] = {};\nUPROPERTY() FName Single;");
	ASSERT_TRUE(Result.Succeeded());
	const std::vector<FPropertyDeclaration>& Properties = Result.Header.Structs.at(0).Properties;
	EXPECT_EQ(Properties.at(0).ArrayDimValue, 16);
	EXPECT_FALSE(Properties.at(1).ArrayDimValue);
	EXPECT_EQ(Properties.at(1).ArrayDim.substr(0, 10), "ESide::Max");
	EXPECT_EQ(Properties.at(2).ArrayDim, "");
}

TEST(Members, InitialisersAreKeptWhateverTheyHold)
{
	const FParseResult Result = ParseMember("FVector A{1, (2), 3};\nUPROPERTY() FString B = TEXT(\"a;b}\");\nUPROPERTY() uint8 bC : 1 = "
											"true;\nUPROPERTY() TMap<FName, int32> D = {{\"x\", 1}};\nUPROPERTY() int32 E;");
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	const std::vector<FPropertyDeclaration>& Properties = Result.Header.Structs.at(0).Properties;
	ASSERT_EQ(Properties.size(), 5u);
	EXPECT_EQ(Properties[0].DefaultText.front(), '{');
	EXPECT_NE(Properties[1].DefaultText.find("a;b}"), std::string::npos);
	EXPECT_EQ(Properties[2].BitWidth, 1);
	EXPECT_EQ(Properties[2].Type.Kind, ETypeKind::Bool);
	EXPECT_EQ(Properties[4].DefaultText, "");
}
}
