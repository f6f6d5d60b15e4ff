#include "Emitter/Module.h"
#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

#include <list>
#include <set>

namespace
{
using namespace HeaderParser;

/** All headers of Engine/ScriptApi, and the native ones that they stand on. */
class ScriptApiTest : public testing::Test
{
protected:
	static void SetUpTestSuite()
	{
		const std::filesystem::path Root(VEXEL_ENGINE_DIR);
		ReadFolder(Root / "ScriptApi", true);
		ReadFolder(Root / "Engine/Public", false);
		ReadFolder(Root / "CoreUObject/Public", false);
		ReadFolder(Root / "BlueprintGraph/Public", false);
	}

	static void ReadFolder(const std::filesystem::path& Folder, const bool bScriptApi)
	{
		for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder))
		{
			if (Entry.path().extension() != ".h")
			{
				continue;
			}
			FParseResult Result = ParseHeader(HeaderTool::ReadFile(Entry.path()).value_or(""));
			if (bScriptApi)
			{
				for (const FDiagnostic& Error : Result.Errors)
				{
					ADD_FAILURE() << FormatDiagnostic(Entry.path().string(), Error);
				}
			}
			Headers.push_back(std::move(Result.Header));
			Types.Add(Headers.back());
			NumScriptHeaders += bScriptApi ? 1 : 0;
		}
	}

	template <typename TVisitor>
	static void ForEachScriptHeader(const TVisitor& Visit)
	{
		size_t Index = 0;
		for (const FHeader& Header : Headers)
		{
			if (Index++ < NumScriptHeaders)
			{
				Visit(Header);
			}
		}
	}

	static const FFunctionDeclaration* FindFunction(const std::string& ClassName, const std::string& Name)
	{
		for (const FHeader& Header : Headers)
		{
			for (const FClassDeclaration& Class : Header.Classes)
			{
				for (const FFunctionDeclaration& Function : Class.Functions)
				{
					if (Class.Name == ClassName && Function.Name == Name)
					{
						return &Function;
					}
				}
			}
		}
		return nullptr;
	}

	static inline std::list<FHeader> Headers;
	static inline size_t NumScriptHeaders = 0;
	static inline FTypeIndex Types;
};

/** Types of Core and of reflection itself, which no header of these folders declares. */
bool IsCoreType(const std::string& Name)
{
	static const std::set<std::string> Names = {"FVector", "FVector2D", "FVector4", "FRotator", "FQuat", "FTransform", "FLinearColor",
		"FColor", "FDateTime", "FTimespan", "FRandomStream", "FGuid", "FPrimaryAssetId", "FIntPoint", "UObject", "UClass", "UInterface",
		"UEnum", "UFunction", "UPackage", "UScriptStruct"};
	return Names.contains(Name);
}

void CollectNames(const FTypeReference& Type, std::set<std::string>& Names)
{
	if (!Type.Name.empty())
	{
		Names.insert(Type.Name);
	}
	for (const FTypeReference& Argument : Type.Arguments)
	{
		CollectNames(Argument, Names);
	}
}

void CollectNames(const FFunctionDeclaration& Function, std::set<std::string>& Names)
{
	for (const FPropertyDeclaration& Parameter : Function.Parameters)
	{
		CollectNames(Parameter.Type, Names);
	}
	if (Function.ReturnValue)
	{
		CollectNames(Function.ReturnValue->Type, Names);
	}
}

TEST_F(ScriptApiTest, EveryHeaderNamesItsPackage)
{
	EXPECT_GT(NumScriptHeaders, 0u);
	ForEachScriptHeader([](const FHeader& Header)
		{ EXPECT_EQ(Header.Package.substr(0, 8), "/Script/"); });
}

TEST_F(ScriptApiTest, EveryNameIsDeclared)
{
	std::set<std::string> Names;
	ForEachScriptHeader([&Names](const FHeader& Header)
		{
		for (const FClassDeclaration& Class : Header.Classes)
		{
			Names.insert(Class.Super);
			for (const FPropertyDeclaration& Property : Class.Properties)
			{
				CollectNames(Property.Type, Names);
			}
			for (const FFunctionDeclaration& Function : Class.Functions)
			{
				CollectNames(Function, Names);
			}
		}
		for (const FStructDeclaration& Struct : Header.Structs)
		{
			for (const FPropertyDeclaration& Property : Struct.Properties)
			{
				CollectNames(Property.Type, Names);
			}
		}
		for (const FDelegateDeclaration& Delegate : Header.Delegates)
		{
			CollectNames(Delegate.Signature, Names);
		} });
	for (const std::string& Name : Names)
	{
		// A value of an interface names the class of its functions, IFoo, where reflection has UFoo.
		const bool bInterface = Name[0] == 'I' && Types.FindClass("U" + Name.substr(1));
		EXPECT_TRUE(bInterface || IsCoreType(Name) || Types.FindClass(Name) || Types.FindStruct(Name) || Types.FindEnum(Name) ||
			Types.FindDelegate(Name))
			<< Name;
	}
}

TEST_F(ScriptApiTest, NoFunctionOfAClassIsDeclaredTwice)
{
	ForEachScriptHeader([](const FHeader& Header)
		{
		for (const FClassDeclaration& Class : Header.Classes)
		{
			std::set<std::string> Seen;
			for (const FFunctionDeclaration& Function : Class.Functions)
			{
				EXPECT_TRUE(Seen.insert(Function.Name).second) << Class.Name << "::" << Function.Name;
			}
		} });
}

/** As a node copied out of the editor shows its pins. */
TEST_F(ScriptApiTest, PrintStringHasTheEditorsDefaults)
{
	const FFunctionDeclaration* const Function = FindFunction("UKismetSystemLibrary", "PrintString");
	ASSERT_TRUE(Function);
	const std::pair<const char*, const char*> Defaults[] = {{"InString", "Hello"}, {"bPrintToScreen", "true"}, {"bPrintToLog", "true"},
		{"TextColor", "(R=0.000000,G=0.660000,B=1.000000,A=1.000000)"}, {"Duration", "2.000000"}, {"Key", "None"}};
	for (const auto& [Name, Value] : Defaults)
	{
		const std::string* const Default = Function->MetaData.Find(std::string("CPP_Default_") + Name);
		ASSERT_TRUE(Default) << Name;
		EXPECT_EQ(*Default, Value);
	}
}
}
