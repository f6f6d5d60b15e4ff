#pragma once

#include "CoreMinimal.h"

class UObject;

/** Appends objects as `Begin Object ... End Object` text, each with what differs from its archetype. */
class FNodeTextExporter
{
public:
	explicit FNodeTextExporter(FString& InOut)
		: Out(InOut)
	{
	}

	void Export(UObject& Object);

private:
	void ExportDefinition(UObject& Object, int32 Indent, bool bWithClass);
	/** The line of an inner object's making, which precedes every property that refers to it. */
	void ExportDeclaration(UObject& Object, int32 Indent);
	void ExportProperties(const UObject& Object, int32 Indent);
	void ExportProperty(const class FProperty& Property, const UObject& Object, const UObject* Archetype, int32 Indent);
	void ExportArray(const class FArrayProperty& Property, const UObject& Object, const UObject* Archetype, int32 Indent);
	void AppendIndent(int32 Indent);
	void AppendLine(int32 Indent, const FString& Name, const FString& Value);
	void BeginObject(const UObject& Object, int32 Indent, bool bWithClass);
	void EndObject(int32 Indent);

	FString& Out;
	/** What holds the exported object: the objects in it are named relative to it. */
	UObject* RootScope = nullptr;
};
