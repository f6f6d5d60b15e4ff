#include "Parser/TypeParser.h"

#include "HeaderParser/Flags.h"

namespace HeaderParser
{
namespace
{
struct FNamedKind
{
	std::string_view Name;
	ETypeKind Kind;
};

constexpr FNamedKind Scalars[] = {
	{"void", ETypeKind::Void},
	{"bool", ETypeKind::Bool},
	{"uint8", ETypeKind::Byte},
	{"int8", ETypeKind::Int8},
	{"int16", ETypeKind::Int16},
	{"int32", ETypeKind::Int},
	{"int", ETypeKind::Int},
	{"int64", ETypeKind::Int64},
	{"uint16", ETypeKind::UInt16},
	{"uint32", ETypeKind::UInt32},
	{"uint64", ETypeKind::UInt64},
	{"float", ETypeKind::Float},
	{"double", ETypeKind::Double},
	{"FName", ETypeKind::Name},
	{"FString", ETypeKind::String},
	{"FText", ETypeKind::Text},
};

/** Templates whose argument is a class. */
constexpr FNamedKind ClassTemplates[] = {
	{"TObjectPtr", ETypeKind::Object},
	{"TWeakObjectPtr", ETypeKind::WeakObject},
	{"TAutoWeakObjectPtr", ETypeKind::WeakObject},
	{"TLazyObjectPtr", ETypeKind::LazyObject},
	{"TSoftObjectPtr", ETypeKind::SoftObject},
	{"TSubclassOf", ETypeKind::Class},
	{"TSoftClassPtr", ETypeKind::SoftClass},
	{"TScriptInterface", ETypeKind::Interface},
	{"TEnumAsByte", ETypeKind::EnumAsByte},
	{"TFieldPath", ETypeKind::FieldPath},
};

constexpr FNamedKind ValueTemplates[] = {
	{"TArray", ETypeKind::Array},
	{"TSet", ETypeKind::Set},
	{"TMap", ETypeKind::Map},
	{"TOptional", ETypeKind::Optional},
};

template <size_t Count>
const FNamedKind* FindKind(const FNamedKind (&Table)[Count], const std::string_view Name)
{
	for (const FNamedKind& Row : Table)
	{
		if (Row.Name == Name)
		{
			return &Row;
		}
	}
	return nullptr;
}

bool HasObjectPrefix(const std::string_view Name)
{
	return Name.size() > 1 && (Name[0] == 'U' || Name[0] == 'A') && Name[1] >= 'A' && Name[1] <= 'Z';
}

void SkipElaboration(FTokenCursor& Cursor, bool& bConst)
{
	while (true)
	{
		if (Cursor.TakeIf("const"))
		{
			bConst = true;
		}
		else if (!Cursor.TakeIf("class") && !Cursor.TakeIf("struct") && !Cursor.TakeIf("enum") && !Cursor.TakeIf("typename") &&
			!Cursor.TakeIf("mutable") && !Cursor.TakeIf("volatile") && !Cursor.TakeIf("::"))
		{
			return;
		}
	}
}

/** Reads `A::B::C`. Name is what the declaration of the type is called, which for `EFoo::Type` is "EFoo". */
bool ParseQualifiedName(FTokenCursor& Cursor, std::string& Name, std::string& CppText)
{
	if (!Cursor.ExpectIdentifier(Name, "a type"))
	{
		return false;
	}
	CppText = Name;
	while (Cursor.TakeIf("::"))
	{
		std::string Part;
		if (!Cursor.ExpectIdentifier(Part, "a name after '::'"))
		{
			return false;
		}
		CppText += "::" + Part;
		Name = Part == "Type" ? Name : Part;
	}
	return true;
}

bool ParseClassArgument(FTokenCursor& Cursor, const std::string& Template, FTypeReference& Out)
{
	bool bConst = false;
	SkipElaboration(Cursor, bConst);
	std::string CppText;
	if (!ParseQualifiedName(Cursor, Out.Name, CppText))
	{
		return false;
	}
	bConst |= Cursor.TakeIf("const");
	Out.CppText = Template + "<" + (bConst ? "const " : "") + CppText + ">";
	Out.bWrapper = Out.Kind == ETypeKind::Object || Out.Kind == ETypeKind::Class;
	return Cursor.Expect(">");
}

bool ParseValueArguments(FTokenCursor& Cursor, const std::string& Template, FTypeReference& Out)
{
	Out.CppText = Template + "<";
	const size_t Expected = Out.Kind == ETypeKind::Map ? 2 : 1;
	for (size_t Index = 0; Index < Expected; ++Index)
	{
		if (Index > 0 && !Cursor.Expect(","))
		{
			return false;
		}
		FTypeReference& Argument = Out.Arguments.emplace_back();
		if (!ParseType(Cursor, Argument))
		{
			return false;
		}
		const bool bConstPointer = Argument.bConst && Argument.Kind == ETypeKind::Object && !Argument.bWrapper;
		Out.CppText += (Index == 0 ? "" : ", ") + std::string(bConstPointer ? "const " : "") + Argument.CppText;
	}
	if (Cursor.TakeIf(","))
	{
		std::string Allocator;
		if (!Cursor.ExpectIdentifier(Allocator, "an allocator"))
		{
			return false;
		}
		Out.CppText += ", " + Allocator;
		if (Cursor.Peek().Is("<"))
		{
			return Cursor.FailExpected("an allocator without arguments");
		}
	}
	Out.CppText += ">";
	return Cursor.Expect(">");
}

bool ParseTemplate(FTokenCursor& Cursor, const std::string& Name, const FPosition& Position, FTypeReference& Out)
{
	const FNamedKind* const ClassTemplate = FindKind(ClassTemplates, Name);
	const FNamedKind* const ValueTemplate = FindKind(ValueTemplates, Name);
	if (!ClassTemplate && !ValueTemplate)
	{
		return Cursor.Fail(Position, "expected a reflected type, found the template '" + Name + "'");
	}
	Out.Kind = (ClassTemplate ? ClassTemplate : ValueTemplate)->Kind;
	if (!Cursor.Expect("<") || !Cursor.Enter())
	{
		return false;
	}
	const bool bParsed = ClassTemplate ? ParseClassArgument(Cursor, Name, Out) : ParseValueArguments(Cursor, Name, Out);
	Cursor.Leave();
	return bParsed;
}

/** The name is read; decides what it names by the `*` behind it. */
bool ResolveName(FTokenCursor& Cursor, const FPosition& Position, FTypeReference& Out)
{
	if (const FNamedKind* const Scalar = FindKind(Scalars, Out.Name))
	{
		Out.Kind = Scalar->Kind;
		Out.Name.clear();
		return !Cursor.Peek().Is("*") || Cursor.FailExpected("a value, as only objects are pointed to");
	}
	if (Cursor.TakeIf("*"))
	{
		if (!HasObjectPrefix(Out.Name))
		{
			return Cursor.Fail(Position, "expected an object class before '*', found '" + Out.Name + "'");
		}
		Out.Kind = Out.Name == "UClass" ? ETypeKind::Class : ETypeKind::Object;
		Out.Name = Out.Kind == ETypeKind::Class ? "UObject" : Out.Name;
		Out.CppText += "*";
		return !Cursor.Peek().Is("*") || Cursor.FailExpected("a pointer to an object");
	}
	if (HasObjectPrefix(Out.Name))
	{
		return Cursor.FailExpected("'*' after the object class '" + Out.Name + "'");
	}
	Out.Kind = ETypeKind::Named;
	return true;
}
}

bool ParseType(FTokenCursor& Cursor, FTypeReference& Out)
{
	SkipElaboration(Cursor, Out.bConst);
	const FPosition Position = Cursor.Peek().Position;
	if (!ParseQualifiedName(Cursor, Out.Name, Out.CppText))
	{
		return false;
	}
	if (Cursor.Peek().Is("<"))
	{
		const std::string Template = std::move(Out.Name);
		Out.Name.clear();
		if (!ParseTemplate(Cursor, Template, Position, Out))
		{
			return false;
		}
	}
	else
	{
		Out.bConst |= Cursor.TakeIf("const");
		if (!ResolveName(Cursor, Position, Out))
		{
			return false;
		}
	}
	Out.bConst |= Cursor.TakeIf("const");
	Out.bReference = Cursor.TakeIf("&");
	return !Cursor.Peek().Is("&") || Cursor.FailExpected("a value or a reference");
}

uint64_t GetTypePropertyFlags(const FTypeReference& Type)
{
	uint64_t Flags = 0;
	if (Type.bWrapper)
	{
		Flags |= PropertyFlags::UObjectWrapper;
	}
	if (Type.CppText.substr(0, 19) == "TAutoWeakObjectPtr<")
	{
		Flags |= PropertyFlags::AutoWeak;
	}
	return Flags;
}
}
