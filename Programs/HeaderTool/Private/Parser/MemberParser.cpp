#include "Parser/MemberParser.h"

#include "HeaderParser/Flags.h"
#include "Parser/DefaultValue.h"
#include "Parser/SpecifierTables.h"
#include "Parser/Specifiers.h"
#include "Parser/TypeParser.h"

#include <charconv>

namespace HeaderParser
{
namespace
{
constexpr std::string_view DelegatePrefix = "DECLARE_DYNAMIC_";
constexpr std::string_view DeprecatedSuffix = "_DEPRECATED";

bool StartsWith(const std::string_view Text, const std::string_view Prefix) { return Text.substr(0, Prefix.size()) == Prefix; }

bool EndsWith(const std::string_view Text, const std::string_view Suffix)
{
	return Text.size() >= Suffix.size() && Text.substr(Text.size() - Suffix.size()) == Suffix;
}

std::optional<int64_t> ParseInteger(const std::string_view Text)
{
	int64_t Value = 0;
	const std::from_chars_result Result = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
	return Result.ec == std::errc() && Result.ptr == Text.data() + Text.size() ? std::optional(Value) : std::nullopt;
}

/** Takes `UE_DEPRECATED(5.1, "...")`, `[[attributes]]` and `alignas(16)`. */
bool SkipAttributes(FTokenCursor& Cursor)
{
	while (true)
	{
		const FToken& Token = Cursor.Peek();
		if (Token.Is("UE_DEPRECATED") || Token.Is("alignas") || Token.Is("UE_NODISCARD_CTOR"))
		{
			Cursor.Take();
			if (Cursor.Peek().Is("(") && !Cursor.SkipBalanced())
			{
				return false;
			}
		}
		else if (Token.Is("["))
		{
			if (!Cursor.SkipBalanced())
			{
				return false;
			}
		}
		else
		{
			return true;
		}
	}
}

bool ParseArrayDim(FTokenCursor& Cursor, FPropertyDeclaration& Property)
{
	if (!Cursor.TakeIf("["))
	{
		return true;
	}
	if (!Cursor.TakeExpression(Property.ArrayDim))
	{
		return false;
	}
	Property.ArrayDimValue = ParseInteger(Property.ArrayDim);
	return Cursor.Expect("]");
}

bool ParseBitWidth(FTokenCursor& Cursor, FPropertyDeclaration& Property)
{
	if (!Cursor.TakeIf(":"))
	{
		return true;
	}
	const std::optional<int64_t> Width = ParseInteger(Cursor.Peek().Text);
	const ETypeKind Kind = Property.Type.Kind;
	const bool bUnsigned = Kind == ETypeKind::Byte || Kind == ETypeKind::UInt16 || Kind == ETypeKind::UInt32 || Kind == ETypeKind::UInt64 ||
		Kind == ETypeKind::Bool;
	if (!bUnsigned || Width != 1)
	{
		return Cursor.FailExpected("a bit-field of one bit of an unsigned type");
	}
	Cursor.Take();
	Property.BitWidth = 1;
	Property.Type.Kind = ETypeKind::Bool;
	return true;
}

bool ParseMemberInitialiser(FTokenCursor& Cursor, FPropertyDeclaration& Property)
{
	if (Cursor.TakeIf("="))
	{
		return Cursor.TakeExpression(Property.DefaultText);
	}
	if (!Cursor.Peek().Is("{"))
	{
		return true;
	}
	const size_t First = Cursor.Mark();
	if (!Cursor.SkipBalanced())
	{
		return false;
	}
	Property.DefaultText = Cursor.Join(First, Cursor.Mark());
	return true;
}

void SetMemberName(FPropertyDeclaration& Property)
{
	Property.Name = Property.CppName;
	if (EndsWith(Property.CppName, DeprecatedSuffix))
	{
		Property.Name.resize(Property.CppName.size() - DeprecatedSuffix.size());
		Property.Flags |= PropertyFlags::Deprecated;
	}
}

/** Passing by reference is output unless the value is const, which the engine marks as all three. `const FString&` counts as `FString`. */
uint64_t GetParameterFlags(const FTypeReference& Type)
{
	uint64_t Flags = PropertyFlags::Parm | GetTypePropertyFlags(Type);
	if (Type.Kind == ETypeKind::String && Type.bConst && Type.bReference)
	{
		return Flags;
	}
	if (Type.bReference)
	{
		Flags |= PropertyFlags::OutParm;
	}
	if (Type.bConst)
	{
		Flags |= PropertyFlags::ConstParm | (Type.bReference ? PropertyFlags::ReferenceParm : 0);
	}
	return Flags;
}

bool ApplyParameterSpecifiers(FTokenCursor& Cursor, FPropertyDeclaration& Parameter)
{
	for (const FSpecifier& Specifier : Parameter.Specifiers.Specifiers)
	{
		if (EqualsIgnoringCase(Specifier.Name, "ref"))
		{
			Parameter.Flags |= PropertyFlags::ReferenceParm | PropertyFlags::OutParm;
		}
		else if (EqualsIgnoringCase(Specifier.Name, "const"))
		{
			Parameter.Flags |= PropertyFlags::ConstParm;
		}
		else if (EqualsIgnoringCase(Specifier.Name, "DisplayName") && Specifier.Values.size() == 1)
		{
			Parameter.MetaData.Set("DisplayName", Specifier.Values[0]);
		}
		else if (!EqualsIgnoringCase(Specifier.Name, "required") && !EqualsIgnoringCase(Specifier.Name, "NotReplicated"))
		{
			return Cursor.Fail(Specifier.Position, "expected a parameter specifier, found '" + Specifier.Name + "'");
		}
	}
	for (const auto& [Key, Value] : Parameter.Specifiers.MetaData.Pairs())
	{
		Parameter.MetaData.Set(Key, Value);
	}
	return true;
}

bool ParseParameterType(FTokenCursor& Cursor, FPropertyDeclaration& Parameter)
{
	Parameter.Position = Cursor.Peek().Position;
	if (Cursor.TakeIf("UPARAM") && !ParseSpecifiers(Cursor, Parameter.Specifiers))
	{
		return false;
	}
	Parameter.Position = Cursor.Peek().Position;
	if (!ParseType(Cursor, Parameter.Type))
	{
		return false;
	}
	if (Parameter.Type.Kind == ETypeKind::Void)
	{
		return Cursor.Fail(Parameter.Position, "expected a parameter's type, found 'void'");
	}
	Parameter.Flags |= GetParameterFlags(Parameter.Type);
	return ApplyParameterSpecifiers(Cursor, Parameter);
}

bool ParseParameterDefault(FTokenCursor& Cursor, FPropertyDeclaration& Parameter, FMetaData& FunctionMetaData)
{
	if (!Cursor.TakeIf("="))
	{
		return true;
	}
	const FPosition Position = Cursor.Peek().Position;
	if (!Cursor.TakeExpression(Parameter.DefaultText))
	{
		return false;
	}
	const std::optional<std::string> Import = ConvertDefault(Parameter.Type, Parameter.DefaultText);
	if (!Import)
	{
		return Cursor.Fail(Position,
			"expected a default value of type '" + Parameter.Type.CppText + "', found '" + Parameter.DefaultText + "'");
	}
	FunctionMetaData.Set("CPP_Default_" + Parameter.Name, *Import);
	return true;
}

bool ParseParameters(FTokenCursor& Cursor, FFunctionDeclaration& Function)
{
	if (!Cursor.Expect("("))
	{
		return false;
	}
	if (Cursor.Peek().Is("void") && Cursor.Peek(1).Is(")"))
	{
		Cursor.Take();
	}
	while (!Cursor.TakeIf(")"))
	{
		FPropertyDeclaration& Parameter = Function.Parameters.emplace_back();
		if (!ParseParameterType(Cursor, Parameter) || !Cursor.ExpectIdentifier(Parameter.Name, "a parameter's name"))
		{
			return false;
		}
		Parameter.CppName = Parameter.Name;
		if (!ParseArrayDim(Cursor, Parameter) || !ParseParameterDefault(Cursor, Parameter, Function.MetaData))
		{
			return false;
		}
		if (!Cursor.TakeIf(",") && !Cursor.Peek().Is(")"))
		{
			return Cursor.FailExpected("',' or ')'");
		}
	}
	return true;
}

void SetReturnValue(FFunctionDeclaration& Function, FTypeReference Type, FPropertyDeclaration Return)
{
	if (Type.Kind == ETypeKind::Void)
	{
		return;
	}
	Return.Name = "ReturnValue";
	Return.CppName = Return.Name;
	Return.Flags |= PropertyFlags::Parm | PropertyFlags::OutParm | PropertyFlags::ReturnParm | GetTypePropertyFlags(Type);
	Return.Flags |= Type.bConst ? PropertyFlags::ConstParm : 0;
	Return.Flags |= Type.bConst && Type.bReference ? PropertyFlags::ReferenceParm : 0;
	Return.Type = std::move(Type);
	Function.ReturnValue = std::move(Return);
}

void SetOutputFlags(FFunctionDeclaration& Function)
{
	for (const FPropertyDeclaration& Parameter : Function.Parameters)
	{
		if (Parameter.Flags & PropertyFlags::OutParm)
		{
			Function.Flags |= FunctionFlags::HasOutParms;
		}
	}
}

/** Takes the words before the return type: `static`, `virtual`, `FORCEINLINE`, `ENGINE_API`. */
bool TakeFunctionPrefix(FTokenCursor& Cursor, FFunctionDeclaration& Function)
{
	while (true)
	{
		if (!SkipAttributes(Cursor))
		{
			return false;
		}
		const FToken& Token = Cursor.Peek();
		const bool bStatic = Token.Is("static");
		const bool bVirtual = Token.Is("virtual");
		const bool bApi = Token.IsIdentifier() && EndsWith(Token.Text, "_API");
		const bool bInline = Token.Is("inline") || Token.Is("FORCEINLINE") || Token.Is("FORCENOINLINE") || Token.Is("constexpr") ||
			Token.Is("FORCEINLINE_DEBUGGABLE");
		if (!bStatic && !bVirtual && !bApi && !bInline)
		{
			return true;
		}
		Function.Flags |= bStatic ? FunctionFlags::Static : 0;
		Function.bVirtual |= bVirtual;
		Cursor.Take();
	}
}

bool TakeFunctionSuffix(FTokenCursor& Cursor, FFunctionDeclaration& Function)
{
	while (!Cursor.TakeIf(";"))
	{
		if (Cursor.TakeIf("const"))
		{
			Function.bConst = true;
			Function.Flags |= FunctionFlags::Const;
		}
		else if (Cursor.Peek().Is("override") || Cursor.Peek().Is("final"))
		{
			Function.bOverride = true;
			Cursor.Take();
		}
		else if (Cursor.Peek().Is("{"))
		{
			if (!Cursor.SkipBalanced())
			{
				return false;
			}
			Cursor.TakeIf(";");
			return true;
		}
		else if (Cursor.TakeIf("="))
		{
			std::string Text;
			if (!Cursor.TakeExpression(Text))
			{
				return false;
			}
		}
		else if (Cursor.Peek().IsIdentifier() && (Cursor.Peek(1).Is("(") || Cursor.Peek().Is("noexcept")))
		{
			const bool bPureVirtual = Cursor.Take().Is("PURE_VIRTUAL");
			if (Cursor.Peek().Is("(") && !Cursor.SkipBalanced())
			{
				return false;
			}
			if (bPureVirtual)
			{
				Cursor.TakeIf(";");
				return true;
			}
		}
		else
		{
			return Cursor.FailExpected("';' or a body after the function's parameters");
		}
	}
	return true;
}

uint32_t GetAccessFlag(const EAccess Access)
{
	return Access == EAccess::Public ? FunctionFlags::Public : Access == EAccess::Protected ? FunctionFlags::Protected
																							: FunctionFlags::Private;
}

/** What the name of a delegate macro says: DECLARE_DYNAMIC_MULTICAST_DELEGATE_RetVal_TwoParams. */
struct FDelegateMacro
{
	bool bMulticast = false;
	bool bSparse = false;
	bool bReturnValue = false;
	int32_t NumParameters = 0;
};

std::optional<FDelegateMacro> ReadDelegateMacro(std::string_view Name)
{
	static constexpr std::string_view Counts[] = {"", "OneParam", "TwoParams", "ThreeParams", "FourParams", "FiveParams", "SixParams",
		"SevenParams", "EightParams", "NineParams"};
	const auto Take = [&Name](const std::string_view Part)
	{
		const bool bTaken = StartsWith(Name, Part);
		Name.remove_prefix(bTaken ? Part.size() : 0);
		return bTaken;
	};
	FDelegateMacro Macro;
	if (!Take(DelegatePrefix))
	{
		return std::nullopt;
	}
	Macro.bMulticast = Take("MULTICAST_");
	Macro.bSparse = Take("SPARSE_");
	if (!Take("DELEGATE"))
	{
		return std::nullopt;
	}
	Macro.bReturnValue = Take("_RetVal");
	Take("_");
	for (const std::string_view Count : Counts)
	{
		if (Name == Count)
		{
			return Macro;
		}
		++Macro.NumParameters;
	}
	return std::nullopt;
}

bool ParseDelegateParameters(FTokenCursor& Cursor, const int32_t Count, FFunctionDeclaration& Signature)
{
	for (int32_t Index = 0; Index < Count; ++Index)
	{
		FPropertyDeclaration& Parameter = Signature.Parameters.emplace_back();
		if (!Cursor.Expect(",") || !ParseParameterType(Cursor, Parameter) || !Cursor.Expect(",") ||
			!Cursor.ExpectIdentifier(Parameter.Name, "a parameter's name"))
		{
			return false;
		}
		Parameter.CppName = Parameter.Name;
	}
	return true;
}

/** `FName, UOwner, OnThing`: a sparse delegate's macro names its owner after itself. */
bool SkipSparseOwner(FTokenCursor& Cursor)
{
	std::string Name;
	return Cursor.Expect(",") && Cursor.ExpectIdentifier(Name, "the class that owns the delegate") && Cursor.Expect(",") &&
		Cursor.ExpectIdentifier(Name, "the delegate's property");
}
}

bool ParseProperty(FTokenCursor& Cursor, const EAccess Access, FPropertyDeclaration& Out)
{
	const FToken& Macro = Cursor.Take();
	if (!ParseSpecifiers(Cursor, Out.Specifiers) || !SkipAttributes(Cursor))
	{
		return false;
	}
	AddToolTip(Cursor, Macro, Out.MetaData);
	Out.Access = Access;
	Out.Flags = Macro.bEditorOnlyData ? PropertyFlags::EditorOnly : 0;
	Out.Position = Cursor.Peek().Position;
	if (!ParseType(Cursor, Out.Type))
	{
		return false;
	}
	if (Out.Type.Kind == ETypeKind::Void || Out.Type.bReference)
	{
		return Cursor.Fail(Out.Position, "expected a property's type, found 'void' or a reference");
	}
	if (!SkipAttributes(Cursor))
	{
		return false;
	}
	Out.Position = Cursor.Peek().Position;
	if (!Cursor.ExpectIdentifier(Out.CppName, "a property's name"))
	{
		return false;
	}
	SetMemberName(Out);
	Out.Flags |= GetTypePropertyFlags(Out.Type);
	return ParseArrayDim(Cursor, Out) && ParseBitWidth(Cursor, Out) && ParseMemberInitialiser(Cursor, Out) && Cursor.Expect(";") &&
		ApplyPropertySpecifiers(Cursor, Out);
}

bool ParseFunction(FTokenCursor& Cursor, const EAccess Access, FFunctionDeclaration& Out)
{
	const FToken& Macro = Cursor.Take();
	if (!ParseSpecifiers(Cursor, Out.Specifiers))
	{
		return false;
	}
	AddToolTip(Cursor, Macro, Out.MetaData);
	Out.Flags = GetAccessFlag(Access) | (Macro.bEditorOnly ? FunctionFlags::EditorOnly : 0);
	if (!TakeFunctionPrefix(Cursor, Out))
	{
		return false;
	}
	FPropertyDeclaration Return;
	Return.Position = Cursor.Peek().Position;
	if (Cursor.TakeIf("UPARAM") && (!ParseSpecifiers(Cursor, Return.Specifiers) || !ApplyParameterSpecifiers(Cursor, Return)))
	{
		return false;
	}
	FTypeReference ReturnType;
	// `FORCEINLINE` and the module's macro may stand on either side of UPARAM.
	if (!TakeFunctionPrefix(Cursor, Out) || !ParseType(Cursor, ReturnType) || !TakeFunctionPrefix(Cursor, Out))
	{
		return false;
	}
	Out.Position = Cursor.Peek().Position;
	if (!Cursor.ExpectIdentifier(Out.Name, "a function's name") || !ParseParameters(Cursor, Out) || !TakeFunctionSuffix(Cursor, Out))
	{
		return false;
	}
	SetReturnValue(Out, std::move(ReturnType), std::move(Return));
	SetOutputFlags(Out);
	return ApplyFunctionSpecifiers(Cursor, Out);
}

bool IsDelegate(const FTokenCursor& Cursor)
{
	const FToken& Token = Cursor.Peek();
	return Token.Is("UDELEGATE") || (StartsWith(Token.Text, DelegatePrefix) && ReadDelegateMacro(Token.Text) && Cursor.Peek(1).Is("("));
}

bool ParseDelegate(FTokenCursor& Cursor, const std::string& OuterClass, FDelegateDeclaration& Out)
{
	FFunctionDeclaration& Signature = Out.Signature;
	AddToolTip(Cursor, Cursor.Peek(), Signature.MetaData);
	if (Cursor.TakeIf("UDELEGATE") && !ParseSpecifiers(Cursor, Signature.Specifiers))
	{
		return false;
	}
	const std::optional<FDelegateMacro> Macro = ReadDelegateMacro(Cursor.Peek().Text);
	if (!Macro)
	{
		return Cursor.FailExpected("a DECLARE_DYNAMIC_ delegate");
	}
	Cursor.Take();
	FPropertyDeclaration Return;
	FTypeReference ReturnType;
	if (!Cursor.Expect("(") || (Macro->bReturnValue && (!ParseType(Cursor, ReturnType) || !Cursor.Expect(","))))
	{
		return false;
	}
	Out.Position = Cursor.Peek().Position;
	if (!Cursor.ExpectIdentifier(Out.Name, "the delegate's name") || (Macro->bSparse && !SkipSparseOwner(Cursor)))
	{
		return false;
	}
	if (Out.Name.size() < 2 || Out.Name[0] != 'F')
	{
		return Cursor.Fail(Out.Position, "expected a delegate's name that begins with F, found '" + Out.Name + "'");
	}
	if (!ParseDelegateParameters(Cursor, Macro->NumParameters, Signature) || !Cursor.Expect(")"))
	{
		return false;
	}
	Cursor.TakeIf(";");
	Out.OuterClass = OuterClass;
	Out.bMulticast = Macro->bMulticast;
	Out.bSparse = Macro->bSparse;
	Signature.Name = Out.Name.substr(1) + "__DelegateSignature";
	Signature.Position = Out.Position;
	Signature.Flags = FunctionFlags::Public | FunctionFlags::Delegate | (Out.bMulticast ? FunctionFlags::MulticastDelegate : 0);
	SetReturnValue(Signature, std::move(ReturnType), std::move(Return));
	SetOutputFlags(Signature);
	for (const auto& [Key, Value] : Signature.Specifiers.MetaData.Pairs())
	{
		Signature.MetaData.Set(Key, Value);
	}
	return true;
}
}
