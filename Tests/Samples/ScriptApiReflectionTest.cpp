#include "ScriptApiHeaders.h"

#include "EditorFixture.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <map>
#include <set>

using namespace HeaderParser;

namespace
{
/** What the editor has made of the headers, declaration by declaration. */
using FScriptApiReflectionTest = FEditorTest;

std::string ToUtf8(const FString& Text)
{
	return reinterpret_cast<const char*>(FTCHARToUTF8(*Text).Get());
}

std::string Where(const FScriptApiHeader& Header, const FPosition& Position, const std::string& What)
{
	return Header.Path.filename().string() + ":" + std::to_string(Position.Line) + ": " + What;
}

FName ToName(const std::string& Text)
{
	return FName(UTF8_TO_TCHAR(Text.c_str()));
}

/** Names compare without regard to case, as the reflected ones do. */
std::string ToKey(const std::string& Name)
{
	return ToUtf8(ToName(Name).ToString().ToLower());
}

size_t CountParameters(const FFunctionDeclaration& Function)
{
	return Function.Parameters.size() + (Function.ReturnValue ? 1 : 0);
}

void ExpectSignature(const FScriptApiHeader& Header, const UFunction* Function, const FFunctionDeclaration& Declaration)
{
	for (const FPropertyDeclaration& Parameter : Declaration.Parameters)
	{
		EXPECT_TRUE(Function->FindChildProperty(ToName(Parameter.Name)))
			<< Where(Header, Parameter.Position, Declaration.Name + " lacks " + Parameter.Name);
	}
	EXPECT_EQ(static_cast<size_t>(Function->NumParms), CountParameters(Declaration)) << Where(Header, Declaration.Position, Declaration.Name);
}

void ExpectProperties(const FScriptApiHeader& Header, const UStruct* Struct, const std::vector<FPropertyDeclaration>& Properties)
{
	for (const FPropertyDeclaration& Property : Properties)
	{
		EXPECT_TRUE(Struct->FindPropertyByName(ToName(Property.Name)))
			<< Where(Header, Property.Position, ToUtf8(Struct->GetName()) + " lacks " + Property.Name);
	}
}

TEST_F(FScriptApiReflectionTest, EveryHeaderIsUnderstood)
{
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		EXPECT_EQ(Header.Errors, std::vector<std::string>());
	}
}

TEST_F(FScriptApiReflectionTest, EveryClassHasItsSuperMembersAndFunctions)
{
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FClassDeclaration& Declaration : Header.Header.Classes)
		{
			const UClass* const Class = FindDeclaredClass(Header.Header, Declaration.Name);
			ASSERT_TRUE(Class) << Where(Header, Declaration.Position, Declaration.Name);
			const UClass* const Super = Class->GetSuperClass();
			EXPECT_TRUE(Super && ToUtf8(Super->GetPrefixCPP() + Super->GetName()) == Declaration.Super)
				<< Where(Header, Declaration.Position, Declaration.Name);
			ExpectProperties(Header, Class, Declaration.Properties);
			for (const FFunctionDeclaration& FunctionDeclaration : Declaration.Functions)
			{
				const UFunction* const Function = Class->FindFunctionByName(ToName(FunctionDeclaration.Name), EIncludeSuperFlag::ExcludeSuper);
				ASSERT_TRUE(Function) << Where(Header, FunctionDeclaration.Position, Declaration.Name + "::" + FunctionDeclaration.Name);
				ExpectSignature(Header, Function, FunctionDeclaration);
			}
		}
	}
}

TEST_F(FScriptApiReflectionTest, EveryStructHasItsSuperAndMembers)
{
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FStructDeclaration& Declaration : Header.Header.Structs)
		{
			const std::string Path = GetReflectedPath(Header.Header, Declaration.Name);
			const UScriptStruct* const Struct = FindObject<UScriptStruct>(nullptr, UTF8_TO_TCHAR(Path.c_str()));
			ASSERT_TRUE(Struct) << Where(Header, Declaration.Position, Declaration.Name);
			const UStruct* const Super = Struct->GetSuperStruct();
			EXPECT_EQ(Super ? "F" + ToUtf8(Super->GetName()) : std::string(), Declaration.Super)
				<< Where(Header, Declaration.Position, Declaration.Name);
			ExpectProperties(Header, Struct, Declaration.Properties);
			for (const auto& [Key, Value] : Declaration.MetaData.Pairs())
			{
				EXPECT_EQ(ToUtf8(Struct->GetMetaData(ToName(Key))), Value) << Where(Header, Declaration.Position, Declaration.Name + " " + Key);
			}
		}
	}
}

TEST_F(FScriptApiReflectionTest, EveryDelegateHasItsSignature)
{
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FDelegateDeclaration& Declaration : Header.Header.Delegates)
		{
			const std::string Outer = Declaration.OuterClass.empty() ? std::string() : Declaration.OuterClass.substr(1) + ":";
			const std::string Path = Header.Header.Package + "." + Outer + Declaration.Signature.Name;
			const UFunction* const Signature = FindObject<UFunction>(nullptr, UTF8_TO_TCHAR(Path.c_str()));
			ASSERT_TRUE(Signature) << Where(Header, Declaration.Position, Path);
			ExpectSignature(Header, Signature, Declaration.Signature);
		}
	}
}

TEST_F(FScriptApiReflectionTest, EveryEnumeratorHasANameAndAValueOfItsOwn)
{
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FEnumDeclaration& Declaration : Header.Header.Enums)
		{
			const UEnum* const Enum = FindObject<UEnum>(nullptr, UTF8_TO_TCHAR((Header.Header.Package + "." + Declaration.Name).c_str()));
			ASSERT_TRUE(Enum) << Where(Header, Declaration.Position, Declaration.Name);
			std::set<std::string> Names;
			std::set<int64> Values;
			for (const FEnumeratorDeclaration& Enumerator : Declaration.Enumerators)
			{
				const int64 Value = Enum->GetValueByName(ToName(Declaration.QualifiedName(Enumerator)));
				EXPECT_NE(Value, INDEX_NONE) << Where(Header, Enumerator.Position, Enumerator.Name);
				EXPECT_TRUE(Names.insert(ToKey(Enumerator.Name)).second) << Where(Header, Enumerator.Position, Enumerator.Name);
				EXPECT_TRUE(Values.insert(Value).second) << Where(Header, Enumerator.Position, Enumerator.Name);
			}
		}
	}
}

/** A property and a function of one name would hide each other; a delegate's signature has a suffix of its own. */
TEST_F(FScriptApiReflectionTest, NoNameStandsTwiceInAClass)
{
	std::map<std::string, std::set<std::string>> NamesByClass;
	std::set<std::string> Types;
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FClassDeclaration& Declaration : Header.Header.Classes)
		{
			EXPECT_TRUE(Declaration.bContinues || Types.insert(Declaration.Name).second) << Where(Header, Declaration.Position, Declaration.Name);
			std::set<std::string>& Names = NamesByClass[Declaration.Name];
			for (const FPropertyDeclaration& Property : Declaration.Properties)
			{
				EXPECT_TRUE(Names.insert(ToKey(Property.Name)).second) << Where(Header, Property.Position, Declaration.Name + "::" + Property.Name);
			}
			for (const FFunctionDeclaration& Function : Declaration.Functions)
			{
				EXPECT_TRUE(Names.insert(ToKey(Function.Name)).second) << Where(Header, Function.Position, Declaration.Name + "::" + Function.Name);
			}
		}
		for (const FStructDeclaration& Declaration : Header.Header.Structs)
		{
			EXPECT_TRUE(Types.insert(Declaration.Name).second) << Where(Header, Declaration.Position, Declaration.Name);
		}
		for (const FEnumDeclaration& Declaration : Header.Header.Enums)
		{
			EXPECT_TRUE(Types.insert(Declaration.Name).second) << Where(Header, Declaration.Position, Declaration.Name);
		}
		for (const FDelegateDeclaration& Declaration : Header.Header.Delegates)
		{
			EXPECT_TRUE(Types.insert(Declaration.Name).second) << Where(Header, Declaration.Position, Declaration.Name);
		}
	}
}

TEST_F(FScriptApiReflectionTest, DeclaresWhatBlueprintsUseMost)
{
	size_t NumClasses = 0;
	size_t NumFunctions = 0;
	size_t NumProperties = 0;
	size_t NumStructs = 0;
	size_t NumEnums = 0;
	size_t NumDelegates = 0;
	for (const FScriptApiHeader& Header : GetScriptApiHeaders())
	{
		for (const FClassDeclaration& Declaration : Header.Header.Classes)
		{
			NumClasses += Declaration.bContinues ? 0 : 1;
			NumFunctions += Declaration.Functions.size();
			NumProperties += Declaration.Properties.size();
		}
		for (const FStructDeclaration& Declaration : Header.Header.Structs)
		{
			NumProperties += Declaration.Properties.size();
		}
		NumStructs += Header.Header.Structs.size();
		NumEnums += Header.Header.Enums.size();
		NumDelegates += Header.Header.Delegates.size();
	}
	RecordProperty("Classes", static_cast<int>(NumClasses));
	RecordProperty("Functions", static_cast<int>(NumFunctions));
	RecordProperty("Properties", static_cast<int>(NumProperties));
	RecordProperty("Structs", static_cast<int>(NumStructs));
	RecordProperty("Enums", static_cast<int>(NumEnums));
	RecordProperty("Delegates", static_cast<int>(NumDelegates));
	EXPECT_GE(NumFunctions, 2900u)
		<< NumClasses << " classes, " << NumProperties << " properties, " << NumStructs << " structs, " << NumEnums << " enums, " << NumDelegates << " delegates";
}
}
