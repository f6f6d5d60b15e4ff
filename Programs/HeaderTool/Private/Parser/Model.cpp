#include "HeaderParser/Model.h"

#include "HeaderParser/Parser.h"
#include "HeaderParser/TypeIndex.h"
#include "Parser/TokenCursor.h"

namespace HeaderParser
{
void FMetaData::Set(const std::string_view Key, const std::string_view Value)
{
	for (auto& [EntryKey, EntryValue] : Entries)
	{
		if (EqualsIgnoringCase(EntryKey, Key))
		{
			EntryValue = Value;
			return;
		}
	}
	Entries.emplace_back(Key, Value);
}

const std::string* FMetaData::Find(const std::string_view Key) const
{
	for (const auto& [EntryKey, EntryValue] : Entries)
	{
		if (EqualsIgnoringCase(EntryKey, Key))
		{
			return &EntryValue;
		}
	}
	return nullptr;
}

const FSpecifier* FSpecifierList::Find(const std::string_view Name) const
{
	for (const FSpecifier& Specifier : Specifiers)
	{
		if (EqualsIgnoringCase(Specifier.Name, Name))
		{
			return &Specifier;
		}
	}
	return nullptr;
}

std::string FEnumDeclaration::QualifiedName(const FEnumeratorDeclaration& Enumerator) const
{
	return Form == EEnumForm::Plain ? Enumerator.Name : Name + "::" + Enumerator.Name;
}

int32_t FEnumDeclaration::UnderlyingSize() const
{
	if (UnderlyingType == "int64" || UnderlyingType == "uint64")
	{
		return 8;
	}
	if (UnderlyingType == "int32" || UnderlyingType == "uint32" || UnderlyingType == "int")
	{
		return 4;
	}
	if (UnderlyingType == "int16" || UnderlyingType == "uint16")
	{
		return 2;
	}
	// An enum class without a type is an int in C++, whatever its values.
	return Form == EEnumForm::EnumClass && UnderlyingType.empty() ? 4 : 1;
}

void FTypeIndex::Add(const FHeader& Header)
{
	for (const FClassDeclaration& Class : Header.Classes)
	{
		if (!Class.bExtendsNative && !Class.bContinues)
		{
			Classes.emplace(Class.Name, &Class);
		}
	}
	for (const FStructDeclaration& Struct : Header.Structs)
	{
		Structs.emplace(Struct.Name, &Struct);
	}
	for (const FEnumDeclaration& Enum : Header.Enums)
	{
		Enums.emplace(Enum.Name, &Enum);
	}
	for (const FDelegateDeclaration& Delegate : Header.Delegates)
	{
		Delegates.emplace(Delegate.Name, &Delegate);
	}
}

std::string FormatDiagnostic(const std::string_view Path, const FDiagnostic& Diagnostic)
{
	return std::string(Path) + ":" + std::to_string(Diagnostic.Position.Line) + ":" + std::to_string(Diagnostic.Position.Column) +
		": error: " + Diagnostic.Message;
}
}
