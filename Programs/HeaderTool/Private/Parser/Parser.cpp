#include "HeaderParser/Parser.h"

#include "HeaderParser/Flags.h"
#include "Parser/EnumParser.h"
#include "Parser/MemberParser.h"
#include "Parser/SpecifierTables.h"
#include "Parser/Specifiers.h"

#include <set>

namespace HeaderParser
{
namespace
{
bool IsApiMacro(const FToken& Token)
{
	return Token.IsIdentifier() && Token.Text.size() > 4 && Token.Text.substr(Token.Text.size() - 4) == "_API";
}

/** The name and the value of "bName = Value"; nothing when the text has no such form. */
std::optional<std::pair<std::string, std::string>> ReadInheritedDefault(const std::optional<std::string>& Text)
{
	const size_t Equals = Text ? Text->find(" = ") : std::string::npos;
	if (Equals == std::string::npos)
	{
		return std::nullopt;
	}
	return std::pair(Text->substr(0, Equals), Text->substr(Equals + 3));
}

/** What a class or struct body gives, for whoever it belongs to. */
struct FBody
{
	std::string Name;
	std::string OuterClassOfDelegates;
	EAccess Access = EAccess::Private;
	int32_t BodyLine = 0;
	bool bLegacyBody = false;
	bool bDeclaresPureVirtual = false;
	FConstructorFacts Constructors;
	std::vector<FPropertyDeclaration> Properties;
	std::vector<FFunctionDeclaration> Functions;
	/** Names before an opening parenthesis. */
	std::set<std::string, std::less<>> CalledNames;
};

class FHeaderReader
{
public:
	FHeaderReader(const FTokenizedHeader& Tokens, const FParseLimits& Limits, FHeader& InHeader)
		: Cursor(Tokens, Limits)
		, Header(InHeader)
	{
	}

	void Run()
	{
		if (!Cursor.GetHeader().Tokens.empty())
		{
			Header.Package = FindDirective(Cursor, Cursor.Peek(), "Package").value_or("");
		}
		while (!Cursor.AtEnd() && !Cursor.HasTooManyErrors())
		{
			const size_t Start = Cursor.Mark();
			if (!ReadFileItem())
			{
				Cursor.RecoverDeclaration(Start);
			}
		}
	}

	[[nodiscard]] const std::vector<FDiagnostic>& GetErrors() const { return Cursor.GetErrors(); }

private:
	bool ReadFileItem()
	{
		const FToken& Token = Cursor.Peek();
		if (Token.Is("UCLASS"))
		{
			return ReadClass(false);
		}
		if (Token.Is("UINTERFACE"))
		{
			return ReadClass(true);
		}
		if (Token.Is("USTRUCT"))
		{
			return ReadStruct();
		}
		if (Token.Is("UENUM"))
		{
			return Keep(Header.Enums, ParseEnum(Cursor, Header.Enums.emplace_back()));
		}
		if (IsDelegate(Cursor))
		{
			return Keep(Header.Delegates, ParseDelegate(Cursor, "", Header.Delegates.emplace_back()));
		}
		if (FClassDeclaration* const Interface = FindInterfaceOfBody())
		{
			return ReadInterfaceBody(*Interface);
		}
		return SkipItem();
	}

	/** Takes back the entry that was begun for a declaration when that could not be read. */
	template <typename EntryType>
	static bool Keep(std::vector<EntryType>& Entries, const bool bRead)
	{
		if (!bRead)
		{
			Entries.pop_back();
		}
		return bRead;
	}

	bool SkipItem()
	{
		if (Cursor.Peek().Is("{") || Cursor.Peek().Is("(") || Cursor.Peek().Is("["))
		{
			return Cursor.SkipBalanced();
		}
		Cursor.Take();
		return true;
	}

	/** The UINTERFACE whose I-class is defined at the cursor, or null. */
	FClassDeclaration* FindInterfaceOfBody()
	{
		if (!Cursor.Peek().Is("class"))
		{
			return nullptr;
		}
		const size_t NameAt = IsApiMacro(Cursor.Peek(1)) ? 2 : 1;
		const FToken& Name = Cursor.Peek(NameAt);
		const FToken& Next = Cursor.Peek(NameAt + 1);
		if (!Name.IsIdentifier() || Name.Text[0] != 'I' || !(Next.Is(":") || Next.Is("{")))
		{
			return nullptr;
		}
		for (FClassDeclaration& Class : Header.Classes)
		{
			if (Class.bInterface && !Class.InterfaceBody && std::string_view(Class.Name).substr(1) == Name.Text.substr(1))
			{
				return &Class;
			}
		}
		return nullptr;
	}

	/** Takes `class ENGINE_API` up to the name. */
	bool ReadTypeName(const std::string_view Keyword, std::string& Name, FPosition& Position, bool& bApi)
	{
		if (!Cursor.Expect(Keyword))
		{
			return false;
		}
		while (IsApiMacro(Cursor.Peek()) || Cursor.Peek().Is("alignas") || Cursor.Peek().Is("UE_DEPRECATED") || Cursor.Peek().Is("["))
		{
			bApi |= IsApiMacro(Cursor.Peek());
			if (Cursor.Peek().IsIdentifier())
			{
				Cursor.Take();
			}
			if ((Cursor.Peek().Is("(") || Cursor.Peek().Is("[")) && !Cursor.SkipBalanced())
			{
				return false;
			}
		}
		Position = Cursor.Peek().Position;
		return Cursor.ExpectIdentifier(Name, "the name of the " + std::string(Keyword)) && (Cursor.TakeIf("final"), true);
	}

	/** Reads `: public A, public IB`. A template base is left out, as it is not reflected. */
	bool ReadBases(std::vector<std::string>& Bases)
	{
		if (!Cursor.TakeIf(":"))
		{
			return true;
		}
		do
		{
			while (Cursor.TakeIf("public") || Cursor.TakeIf("protected") || Cursor.TakeIf("private") || Cursor.TakeIf("virtual"))
			{
			}
			std::string Base;
			if (!Cursor.ExpectIdentifier(Base, "a base class"))
			{
				return false;
			}
			while (Cursor.TakeIf("::"))
			{
				if (!Cursor.ExpectIdentifier(Base, "a base class"))
				{
					return false;
				}
			}
			if (!Cursor.Peek().Is("<"))
			{
				Bases.push_back(std::move(Base));
				continue;
			}
			while (!Cursor.AtEnd() && !Cursor.Peek().Is("{") && !Cursor.Peek().Is(","))
			{
				Cursor.Take();
			}
		} while (Cursor.TakeIf(","));
		return true;
	}

	bool ReadClass(const bool bInterface)
	{
		FClassDeclaration Class;
		const FToken& Macro = Cursor.Take();
		Class.bInterface = bInterface;
		Class.bExtendsNative = FindDirective(Cursor, Macro, "Extends native").has_value();
		Class.bContinues = FindDirective(Cursor, Macro, "Continues").has_value();
		Class.InheritedDefault = ReadInheritedDefault(FindDirective(Cursor, Macro, "Initially"));
		bool bApi = false;
		std::vector<std::string> Bases;
		if (!ParseSpecifiers(Cursor, Class.Specifiers) || !ReadTypeName("class", Class.Name, Class.Position, bApi) || !ReadBases(Bases))
		{
			return false;
		}
		if (Class.Name.size() < 2 || (Class.Name[0] != 'U' && Class.Name[0] != 'A'))
		{
			return Cursor.Fail(Class.Position, "expected a class name that begins with U or A, found '" + Class.Name + "'");
		}
		// UObject's own bases are not reflected.
		if (!Bases.empty() && Class.Name != "UObject")
		{
			Class.Super = Bases.front();
			Class.Interfaces.assign(Bases.begin() + 1, Bases.end());
		}
		Class.Flags =
			ClassFlags::Native | (bApi ? ClassFlags::RequiredAPI : 0) | (bInterface ? ClassFlags::Interface | ClassFlags::Abstract : 0);
		FBody Body;
		Body.Name = Class.Name;
		Body.OuterClassOfDelegates = Class.Name;
		if (!ApplyClassSpecifiers(Cursor, Class) || !ReadBody(Body))
		{
			return false;
		}
		AddToolTip(Cursor, Macro, Class.MetaData);
		Class.BodyLine = Body.BodyLine;
		Class.bLegacyBody = Body.bLegacyBody;
		Class.bDeclaresPureVirtual = Body.bDeclaresPureVirtual;
		Class.bDeclaresAddReferencedObjects = Body.CalledNames.contains("AddReferencedObjects");
		Class.Constructors = Body.Constructors;
		Class.Properties = std::move(Body.Properties);
		Class.Functions = std::move(Body.Functions);
		Header.Classes.push_back(std::move(Class));
		return true;
	}

	bool ReadInterfaceBody(FClassDeclaration& Interface)
	{
		FInterfaceBody& Out = Interface.InterfaceBody.emplace();
		FPosition Position;
		bool bApi = false;
		std::vector<std::string> Bases;
		FBody Body;
		Body.OuterClassOfDelegates = Interface.Name;
		if (!ReadTypeName("class", Out.Name, Position, bApi) || !ReadBases(Bases))
		{
			return false;
		}
		Body.Name = Out.Name;
		if (!ReadBody(Body))
		{
			return false;
		}
		if (!Body.Properties.empty())
		{
			return Cursor.Fail(Body.Properties.front().Position,
				"expected functions alone in an interface, found the property '" + Body.Properties.front().Name + "'");
		}
		Out.Super = Bases.empty() ? "" : Bases.front();
		Out.BodyLine = Body.BodyLine;
		Out.bLegacyBody = Body.bLegacyBody;
		Out.bDestructor = Body.Constructors.bDestructor;
		Out.bDeclaresGetUObject = Body.CalledNames.contains("_getUObject");
		Interface.Functions = std::move(Body.Functions);
		return true;
	}

	bool ReadStruct()
	{
		FStructDeclaration Struct;
		const FToken& Macro = Cursor.Take();
		bool bApi = false;
		std::vector<std::string> Bases;
		if (!ParseSpecifiers(Cursor, Struct.Specifiers) || !ReadTypeName("struct", Struct.Name, Struct.Position, bApi) || !ReadBases(Bases))
		{
			return false;
		}
		if (Struct.Name.size() < 2 || Struct.Name[0] != 'F')
		{
			return Cursor.Fail(Struct.Position, "expected a struct name that begins with F, found '" + Struct.Name + "'");
		}
		Struct.Super = Bases.empty() ? "" : Bases.front();
		FBody Body;
		Body.Name = Struct.Name;
		Body.Access = EAccess::Public;
		if (!ApplyStructSpecifiers(Cursor, Struct) || !ReadBody(Body))
		{
			return false;
		}
		if (!Body.Functions.empty())
		{
			return Cursor.Fail(Body.Functions.front().Position,
				"expected properties alone in a struct, found the function '" + Body.Functions.front().Name + "'");
		}
		Struct.Flags |= bApi ? StructFlags::RequiredAPI : 0;
		AddToolTip(Cursor, Macro, Struct.MetaData);
		Struct.BodyLine = Body.BodyLine;
		Struct.Properties = std::move(Body.Properties);
		Header.Structs.push_back(std::move(Struct));
		return true;
	}

	bool ReadBody(FBody& Body)
	{
		if (!Cursor.Expect("{"))
		{
			return false;
		}
		while (!Cursor.TakeIf("}"))
		{
			if (Cursor.AtEnd() || BeginsDeclaration(Cursor.Peek()))
			{
				return Cursor.FailExpected("'}' at the end of '" + Body.Name + "'");
			}
			const size_t Start = Cursor.Mark();
			const bool bGoOn = ReadMember(Body) || Cursor.RecoverMember(Start) || Cursor.Peek().Is("}");
			if (!bGoOn || Cursor.HasTooManyErrors())
			{
				return false;
			}
		}
		for (FFunctionDeclaration& Function : Body.Functions)
		{
			Function.bDeclaresImplementation = Body.CalledNames.contains(Function.Name + "_Implementation");
		}
		return Cursor.Expect(";");
	}

	bool ReadMember(FBody& Body)
	{
		const FToken& Token = Cursor.Peek();
		if (Token.Is("UPROPERTY"))
		{
			return Keep(Body.Properties, ParseProperty(Cursor, Body.Access, Body.Properties.emplace_back()));
		}
		if (Token.Is("UFUNCTION"))
		{
			return Keep(Body.Functions, ParseFunction(Cursor, Body.Access, Body.Functions.emplace_back()));
		}
		if (IsDelegate(Cursor))
		{
			return Keep(Header.Delegates, ParseDelegate(Cursor, Body.OuterClassOfDelegates, Header.Delegates.emplace_back()));
		}
		if (Token.IsIdentifier() && Token.Text.substr(0, 10) == "GENERATED_")
		{
			return ReadGeneratedBody(Body);
		}
		if (Cursor.Peek(1).Is(":") && ReadAccess(Token, Body.Access))
		{
			Cursor.Take();
			Cursor.Take();
			return true;
		}
		NoteMember(Body);
		return SkipItem();
	}

	static bool ReadAccess(const FToken& Token, EAccess& Access)
	{
		const bool bPublic = Token.Is("public");
		const bool bProtected = Token.Is("protected");
		if (!bPublic && !bProtected && !Token.Is("private"))
		{
			return false;
		}
		Access = bPublic ? EAccess::Public : bProtected ? EAccess::Protected
														: EAccess::Private;
		return true;
	}

	bool ReadGeneratedBody(FBody& Body)
	{
		const FToken& Token = Cursor.Take();
		Body.bLegacyBody =
			Token.Is("GENERATED_UCLASS_BODY") || Token.Is("GENERATED_UINTERFACE_BODY") || Token.Is("GENERATED_IINTERFACE_BODY");
		Body.BodyLine = Token.Position.Line;
		if (Body.bLegacyBody)
		{
			Body.Access = EAccess::Public;
		}
		return !Cursor.Peek().Is("(") || Cursor.SkipBalanced();
	}

	/** Remembers what the generated code must know of members that are not reflected. */
	void NoteMember(FBody& Body)
	{
		const FToken& Token = Cursor.Peek();
		if (Token.Is("=") && Cursor.Peek(1).Is("0") && Cursor.Peek(2).Is(";") &&
			(Cursor.Previous().Is(")") || Cursor.Previous().Is("const") || Cursor.Previous().Is("override")))
		{
			Body.bDeclaresPureVirtual = true;
		}
		if (!Token.IsIdentifier() || !Cursor.Peek(1).Is("("))
		{
			return;
		}
		Body.CalledNames.emplace(Token.Text);
		if (Token.Text != Body.Name)
		{
			return;
		}
		if (Cursor.Previous().Is("~"))
		{
			Body.Constructors.bDestructor = true;
			return;
		}
		NoteConstructor(Body.Constructors);
	}

	/** The cursor stands at the class's name before a parenthesis. */
	void NoteConstructor(FConstructorFacts& Constructors)
	{
		const size_t FirstParameter = 2;
		const bool bVoid =
			Cursor.Peek(FirstParameter).Is(")") || (Cursor.Peek(FirstParameter).Is("void") && Cursor.Peek(FirstParameter + 1).Is(")"));
		const size_t TypeAt = FirstParameter + (Cursor.Peek(FirstParameter).Is("const") ? 1 : 0);
		const bool bObjectInitializer = Cursor.Peek(TypeAt).Is("FObjectInitializer") ||
			(Cursor.Peek(TypeAt).Is("class") && Cursor.Peek(TypeAt + 1).Is("FObjectInitializer"));
		if (bVoid)
		{
			Constructors.bDefault = true;
		}
		else if (bObjectInitializer)
		{
			Constructors.bObjectInitializer = true;
		}
		else
		{
			Constructors.bOther = true;
		}
	}

	FTokenCursor Cursor;
	FHeader& Header;
};
}

FParseResult ParseHeader(const std::string_view Text, const FParseLimits& Limits)
{
	FParseResult Result;
	if (Text.size() > Limits.MaxBytes)
	{
		Result.Errors.push_back(
			{{1, 1}, "expected at most " + std::to_string(Limits.MaxBytes) + " bytes, found " + std::to_string(Text.size())});
		return Result;
	}
	FTokenizedHeader Tokens = Tokenize(Text);
	if (!Tokens.Errors.empty())
	{
		Result.Errors = std::move(Tokens.Errors);
		return Result;
	}
	FHeaderReader Reader(Tokens, Limits, Result.Header);
	Reader.Run();
	Result.Header.Includes = std::move(Tokens.Includes);
	Result.Errors = Reader.GetErrors();
	return Result;
}
}
