#include "NodeTextExporter.h"

#include "Misc/OutputDevice.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
constexpr int32 SpacesOfIndent = 3;
constexpr int32 CopyPortFlags = PPF_Copy | PPF_Delimited | PPF_ExportsNotFullyQualified;
const TCHAR* const LineEnd = TEXT("\r\n");

/** Objects directly inside another one that its text has to bring along. */
TArray<UObject*> GetExportedInnerObjects(const UObject& Object)
{
	TArray<UObject*> Inners;
	GetObjectsWithOuter(&Object, Inners, false);
	Inners.RemoveAll([](const UObject* Inner)
		{ return !IsValid(Inner) || Inner->HasAnyFlags(RF_TextExportTransient | RF_Transient); });
	return Inners;
}
}

void FNodeTextExporter::Export(UObject& Object)
{
	RootScope = Object.GetOuter();
	ExportDefinition(Object, 0, true);
}

void FNodeTextExporter::AppendIndent(int32 Indent)
{
	for (int32 Space = 0; Space < Indent * SpacesOfIndent; ++Space)
	{
		Out.AppendChar(TEXT(' '));
	}
}

void FNodeTextExporter::AppendLine(int32 Indent, const FString& Name, const FString& Value)
{
	AppendIndent(Indent);
	Out += Name;
	Out += TEXT("=");
	Out += Value;
	Out += LineEnd;
}

void FNodeTextExporter::BeginObject(const UObject& Object, int32 Indent, bool bWithClass)
{
	AppendIndent(Indent);
	Out += TEXT("Begin Object");
	if (bWithClass)
	{
		Out += TEXT(" Class=");
		Out += Object.GetClass()->GetPathName();
	}
	Out += FString::Printf(
		TEXT(" Name=\"%s\" ExportPath=\"%s'%s'\""), *Object.GetName(), *Object.GetClass()->GetPathName(), *Object.GetPathName());
	Out += LineEnd;
}

void FNodeTextExporter::EndObject(int32 Indent)
{
	AppendIndent(Indent);
	Out += TEXT("End Object");
	Out += LineEnd;
}

void FNodeTextExporter::ExportDeclaration(UObject& Object, int32 Indent)
{
	BeginObject(Object, Indent, true);
	for (UObject* const Inner : GetExportedInnerObjects(Object))
	{
		ExportDeclaration(*Inner, Indent + 1);
	}
	EndObject(Indent);
}

void FNodeTextExporter::ExportDefinition(UObject& Object, int32 Indent, bool bWithClass)
{
	BeginObject(Object, Indent, bWithClass);
	const TArray<UObject*> Inners = GetExportedInnerObjects(Object);
	if (bWithClass)
	{
		for (UObject* const Inner : Inners)
		{
			ExportDeclaration(*Inner, Indent + 1);
		}
	}
	for (UObject* const Inner : Inners)
	{
		ExportDefinition(*Inner, Indent + 1, false);
	}
	ExportProperties(Object, Indent + 1);

	FStringOutputDevice CustomProperties;
	Object.ExportCustomProperties(CustomProperties, static_cast<uint32>((Indent + 1) * SpacesOfIndent));
	Out += *CustomProperties;
	EndObject(Indent);
}

void FNodeTextExporter::ExportProperties(const UObject& Object, int32 Indent)
{
	const UObject* const Archetype = Object.GetArchetype();
	for (TFieldIterator<FProperty> It(Object.GetClass()); It; ++It)
	{
		if (!It->ShouldPort(CopyPortFlags) || It->HasAnyPropertyFlags(CPF_Transient | CPF_Deprecated))
		{
			continue;
		}
		if (const FArrayProperty* const Array = CastField<FArrayProperty>(*It))
		{
			ExportArray(*Array, Object, Archetype, Indent);
		}
		else
		{
			ExportProperty(**It, Object, Archetype, Indent);
		}
	}
}

void FNodeTextExporter::ExportProperty(const FProperty& Property, const UObject& Object, const UObject* Archetype, int32 Indent)
{
	UObject* const Parent = const_cast<UObject*>(&Object);
	for (int32 Index = 0; Index < Property.ArrayDim; ++Index)
	{
		const void* const Default = Property.ContainerPtrToValuePtrForDefaults<void>(
			Archetype ? Archetype->GetClass() : nullptr, Archetype, Index);
		const void* const Value = Property.ContainerPtrToValuePtr<void>(&Object, Index);
		if (Default && Property.Identical(Value, Default, CopyPortFlags))
		{
			continue;
		}
		FString Text;
		Property.ExportTextItem_Direct(Text, Value, Default, Parent, CopyPortFlags, RootScope);
		AppendLine(Indent, Property.ArrayDim > 1 ? FString::Printf(TEXT("%s(%d)"), *Property.GetName(), Index) : Property.GetName(), Text);
	}
}

void FNodeTextExporter::ExportArray(const FArrayProperty& Property, const UObject& Object, const UObject* Archetype, int32 Indent)
{
	UObject* const Parent = const_cast<UObject*>(&Object);
	FScriptArrayHelper Elements(&Property, Property.ContainerPtrToValuePtr<void>(&Object));
	const void* const DefaultArray = Property.ContainerPtrToValuePtrForDefaults<void>(
		Archetype ? Archetype->GetClass() : nullptr, Archetype);
	FScriptArrayHelper Defaults(&Property, DefaultArray ? DefaultArray : Property.ContainerPtrToValuePtr<void>(&Object));
	const int32 NumDefaults = DefaultArray ? Defaults.Num() : 0;
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		const void* const Default = Index < NumDefaults ? Defaults.GetRawPtr(Index) : nullptr;
		if (Default && Property.Inner->Identical(Elements.GetRawPtr(Index), Default, CopyPortFlags))
		{
			continue;
		}
		FString Text;
		Property.Inner->ExportTextItem_Direct(Text, Elements.GetRawPtr(Index), Default, Parent, CopyPortFlags, RootScope);
		AppendLine(Indent, FString::Printf(TEXT("%s(%d)"), *Property.GetName(), Index), Text);
	}
}
