#pragma once

#include "Blueprint/VexelBlueprintMapping.h"
#include "CoreMinimal.h"

class UObject;

/**
 * What one export or import needs from the call that it is for: the mapping that names things, and how deep it has gone.
 * Made by the caller; outlives it.
 */
class FLumContext
{
public:
	explicit FLumContext(const TSharedRef<FVexelBlueprintMapping>& InMapping)
		: Mapping(InMapping)
	{
	}

	FVexelBlueprintMapping& GetMapping() const { return *Mapping; }

	/** Objects of which one lies in the other, and structs likewise, are exported with their properties to this depth. */
	static constexpr int32 MaxObjectDepth = 2;
	static constexpr int32 MaxStructDepth = 1;

	/** Objects of JSON that lie in each other are imported to this depth. */
	static constexpr int32 MaxImportDepth = 256;

	/** Held while a compound's object is imported. */
	class FImportScope
	{
	public:
		explicit FImportScope(const FLumContext& InContext)
			: Context(InContext)
		{
			++Context.ImportDepth;
		}
		~FImportScope() { --Context.ImportDepth; }
		FImportScope(const FImportScope&) = delete;
		FImportScope& operator=(const FImportScope&) = delete;

	private:
		const FLumContext& Context;
	};

	/** Held while an object's properties are exported. */
	class FObjectScope
	{
	public:
		FObjectScope(const FLumContext& InContext, const UObject* Object)
			: Context(InContext)
		{
			Context.OpenObjects.Push(Object);
		}
		~FObjectScope() { Context.OpenObjects.Pop(); }
		FObjectScope(const FObjectScope&) = delete;
		FObjectScope& operator=(const FObjectScope&) = delete;

	private:
		const FLumContext& Context;
	};

	/** Held while a struct's fields are exported. */
	class FStructScope
	{
	public:
		explicit FStructScope(const FLumContext& InContext)
			: Context(InContext)
		{
			++Context.StructDepth;
		}
		~FStructScope() { --Context.StructDepth; }
		FStructScope(const FStructScope&) = delete;
		FStructScope& operator=(const FStructScope&) = delete;

	private:
		const FLumContext& Context;
	};

	/** Whether an object may be exported with its properties: not inside itself, and not too deep. Otherwise a reference stands for it. */
	bool CanOpen(const UObject* Object) const { return OpenObjects.Num() < MaxObjectDepth && !OpenObjects.Contains(Object); }
	/** Whether a struct may be exported field by field; otherwise its text stands for it. */
	bool CanOpenStruct() const { return StructDepth < MaxStructDepth; }
	/** Whether a compound inside those that are being imported may be imported. */
	bool CanImport() const { return ImportDepth < MaxImportDepth; }

	/** Room for the text of one value while it is read: of thousands each would allocate its own. The next use overwrites it. */
	FString& GetTextBuffer() const { return TextBuffer; }

private:
	TSharedRef<FVexelBlueprintMapping> Mapping;
	mutable TArray<const UObject*> OpenObjects;
	mutable int32 StructDepth = 0;
	mutable int32 ImportDepth = 0;
	mutable FString TextBuffer;
};
