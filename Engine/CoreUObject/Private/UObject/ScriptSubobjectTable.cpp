#include "ScriptSubobjectTable.h"

#include "DeclaredDefaults.h"
#include "InitialiserReader.h"
#include "ObjectBootstrap.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
enum EColumn : int32
{
	OwnerColumn,
	MembersColumn,
	NameColumn,
	ClassColumn,
	KindColumn,
	NumNeededColumns,
	ValuesColumn = NumNeededColumns,
	MaxColumns
};

int32 GetDepth(const UClass* Class)
{
	int32 Depth = 0;
	for (; Class; Class = Class->GetSuperClass())
	{
		++Depth;
	}
	return Depth;
}
}

FScriptSubobjectTable::FScriptSubobjectTable(
	const UE::CoreUObject::FScriptHeaderSource& InSource, UE::CoreUObject::FScriptHeaderReport& InReport)
	: Source(InSource)
	, Report(InReport)
{
}

bool FScriptSubobjectTable::Refuse(int32 Line, const FString& Message)
{
	Report.Errors.Add(FString::Printf(TEXT("%s:%d:1: error: %s"), *Source.Path, Line, *Message));
	return false;
}

void FScriptSubobjectTable::Read()
{
	const FString Text(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Source.Text.GetData()), Source.Text.Num()));
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	for (int32 Index = 0; Index < Lines.Num(); ++Index)
	{
		FRow Row;
		Row.Line = Index + 1;
		const FString Line = Lines[Index].TrimStartAndEnd();
		if (!Line.IsEmpty() && !Line.StartsWith(TEXT("#")) && ReadRow(Line, Row))
		{
			Rows.Add(MoveTemp(Row));
		}
	}
	TArray<UClass*> Owners;
	TMap<const UClass*, TArray<const FRow*>> RowsOf;
	for (const FRow& Row : Rows)
	{
		Owners.AddUnique(Row.Owner);
		RowsOf.FindOrAdd(Row.Owner).Add(&Row);
	}
	// A class starts from its super's list.
	Owners.StableSort([](const UClass& Left, const UClass& Right)
		{ return GetDepth(&Left) < GetDepth(&Right); });
	for (UClass* const Owner : Owners)
	{
		GiveToClass(Owner, RowsOf.FindChecked(Owner));
	}
}

bool FScriptSubobjectTable::ReadRow(const FString& Line, FRow& OutRow)
{
	TArray<FString> Columns;
	Line.ParseIntoArray(Columns, TEXT("|"), false);
	if (Columns.Num() < NumNeededColumns || Columns.Num() > MaxColumns)
	{
		return Refuse(OutRow.Line, TEXT("a row is: class | members | sub-object | its class | kind | values"));
	}
	for (FString& Column : Columns)
	{
		Column.TrimStartAndEndInline();
	}
	OutRow.Owner = FindClass(Columns[OwnerColumn], OutRow.Line);
	if (!OutRow.Owner)
	{
		return false;
	}
	const bool bHasDefaultObject = OutRow.Owner->GetDefaultObject(false) != nullptr;
	const FDeclaredDefaults* const Known = FObjectBootstrap::GetDeclaredDefaults(OutRow.Owner);
	if (bHasDefaultObject && Known && Known->GetSubobjects())
	{
		// The table is read again: as with a header, what is there already is left alone.
		return false;
	}
	if (!OutRow.Owner->bLaidOutAtRunTime || bHasDefaultObject)
	{
		return Refuse(OutRow.Line, FString::Printf(TEXT("%s has a constructor or a default object already"), *Columns[OwnerColumn]));
	}
	Columns[MembersColumn].ParseIntoArrayWS(OutRow.Members);
	OutRow.Name = FName(*Columns[NameColumn]);
	if (OutRow.Name.IsNone())
	{
		return Refuse(OutRow.Line, TEXT("the sub-object has no name"));
	}
	if (Columns[ClassColumn] != TEXT("none"))
	{
		OutRow.Class = FindClass(Columns[ClassColumn], OutRow.Line);
		if (!OutRow.Class)
		{
			return false;
		}
	}
	OutRow.bEditorOnly = Columns[KindColumn] == TEXT("editor");
	OutRow.bOptional = OutRow.bEditorOnly || Columns[KindColumn] == TEXT("optional");
	if (!OutRow.bOptional && !Columns[KindColumn].IsEmpty())
	{
		return Refuse(OutRow.Line, FString::Printf(TEXT("there is no kind '%s'"), *Columns[KindColumn]));
	}
	if (Columns.IsValidIndex(ValuesColumn))
	{
		Columns[ValuesColumn].ParseIntoArray(OutRow.Values, TEXT(";"));
	}
	return true;
}

UClass* FScriptSubobjectTable::FindClass(const FString& CppName, int32 Line)
{
	UObject* const Found = CppName.Len() < 2
		? nullptr
		: StaticFindFirstObject(UClass::StaticClass(), *CppName.RightChop(1), EFindFirstObjectOptions::NativeFirst);
	if (!Found || !Found->IsNative())
	{
		Refuse(Line, FString::Printf(TEXT("there is no class %s"), *CppName));
		return nullptr;
	}
	return static_cast<UClass*>(Found);
}

void FScriptSubobjectTable::GiveToClass(UClass* Owner, const TArray<const FRow*>& OwnRows)
{
	const FDeclaredSubobjects* const Inherited = FDeclaredSubobjects::Find(Owner->GetSuperClass());
	TUniquePtr<FDeclaredSubobjects> Subobjects =
		Inherited ? MakeUnique<FDeclaredSubobjects>(*Inherited) : MakeUnique<FDeclaredSubobjects>();
	TArray<const FRow*> Placed;
	for (const FRow* const Row : OwnRows)
	{
		if (Place(*Row, *Subobjects))
		{
			Placed.Add(Row);
		}
	}
	// A value may name any sub-object of the class.
	for (const FRow* const Row : Placed)
	{
		AddValues(*Row, *Subobjects);
	}
	FDeclaredDefaults* Defaults = FObjectBootstrap::GetDeclaredDefaults(Owner);
	if (!Defaults)
	{
		Defaults = new FDeclaredDefaults;
		Owner->SetDeclaredDefaults(Defaults);
	}
	Defaults->SetSubobjects(MoveTemp(Subobjects));
}

bool FScriptSubobjectTable::Place(const FRow& Row, FDeclaredSubobjects& Subobjects)
{
	const int32 Known = Subobjects.FindIndex(Row.Name);
	if (Known == INDEX_NONE)
	{
		FDeclaredSubobject New;
		New.Name = Row.Name;
		New.Class = Row.Class;
		New.bOptional = Row.bOptional;
		if (!Row.Class || Row.Members.IsEmpty())
		{
			return Refuse(Row.Line, FString::Printf(TEXT("%s needs a class, and a member that holds it"), *Row.Name.ToString()));
		}
		if (!AddMembers(Row, New))
		{
			return false;
		}
		Subobjects.GetAll().Add(MoveTemp(New));
		return true;
	}
	FDeclaredSubobject& Subobject = Subobjects.GetAll()[Known];
	if (Row.Class ? !Subobject.Class || !Row.Class->IsChildOf(Subobject.Class) : !Subobject.bOptional)
	{
		const FString Wish = Row.Class ? TEXT("a ") + Row.Class->GetName() : FString(TEXT("left out"));
		return Refuse(Row.Line, FString::Printf(TEXT("%s of the super cannot be %s"), *Row.Name.ToString(), *Wish));
	}
	Subobject.Class = Row.Class;
	return AddMembers(Row, Subobject);
}

bool FScriptSubobjectTable::AddMembers(const FRow& Row, FDeclaredSubobject& Subobject)
{
	for (const FString& Member : Row.Members)
	{
		const FObjectProperty* const Property = FindFProperty<FObjectProperty>(Row.Owner, *Member);
		if (!Property || !Row.Class || !Row.Class->IsChildOf(Property->PropertyClass))
		{
			return Refuse(Row.Line,
				FString::Printf(
					TEXT("%s has no member %s that could hold %s"), *Row.Owner->GetName(), *Member, *Row.Name.ToString()));
		}
		Subobject.Members.Add(Property);
	}
	return true;
}

void FScriptSubobjectTable::AddValues(const FRow& Row, FDeclaredSubobjects& Subobjects)
{
	FDeclaredSubobject& Subobject = Subobjects.GetAll()[Subobjects.FindIndex(Row.Name)];
	const TSharedRef<FDeclaredDefaults> Values = MakeShared<FDeclaredDefaults>();
	TArray<FString> Texts = Row.Values;
	if (Row.bEditorOnly)
	{
		Texts.Add(TEXT("bIsEditorOnly = true"));
	}
	for (const FString& Text : Texts)
	{
		FString Name;
		FString Value;
		if (!Text.Split(TEXT("="), &Name, &Value) ||
			!AddValue(Name.TrimStartAndEnd(), Value.TrimStartAndEnd(), Subobjects, Subobject, *Values))
		{
			Refuse(Row.Line, FString::Printf(TEXT("%s does not take the value '%s'"), *Row.Name.ToString(), *Text.TrimStartAndEnd()));
		}
	}
	if (!Values->IsEmpty())
	{
		Subobject.Values.Add(Values);
	}
}

bool FScriptSubobjectTable::AddValue(
	const FString& Name, const FString& Text, FDeclaredSubobjects& Subobjects, FDeclaredSubobject& Subobject, FDeclaredDefaults& OutValues)
{
	const FProperty* const Property = Subobject.Class ? FindFProperty<FProperty>(Subobject.Class, *Name) : nullptr;
	const FObjectProperty* const Reference = CastField<FObjectProperty>(Property);
	const int32 Sibling = Reference ? Subobjects.FindIndex(FName(*Text)) : INDEX_NONE;
	if (Sibling != INDEX_NONE)
	{
		const UClass* const SiblingClass = Subobjects.GetAll()[Sibling].Class;
		if (!SiblingClass || !SiblingClass->IsChildOf(Reference->PropertyClass))
		{
			return false;
		}
		Subobject.Siblings.Emplace(Reference, Sibling);
		return true;
	}
	void* const Value = Property ? Property->AllocateAndInitializeValue() : nullptr;
	if (!Value || !FInitialiserReader(Text).Read(Property, Value))
	{
		if (Value)
		{
			Property->DestroyAndFreeValue(Value);
		}
		return false;
	}
	OutValues.Add(Property, Value);
	return true;
}
