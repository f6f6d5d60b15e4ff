#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"
#include "Serialization/Archive.h"
#include "UObject/ObjectMacros.h"
#include "UObject/WeakObjectPtr.h"

class FArchive;
class UObject;

/** An entry of a package's tables: above 0 an export, below an import, 0 nothing. */
class FPackageIndex
{
public:
	FPackageIndex() = default;
	static FPackageIndex FromExport(int32 ExportIndex) { return FPackageIndex(ExportIndex + 1); }
	static FPackageIndex FromImport(int32 ImportIndex) { return FPackageIndex(-ImportIndex - 1); }
	static FPackageIndex FromRaw(int32 Raw) { return FPackageIndex(Raw); }

	bool IsNull() const { return Index == 0; }
	bool IsExport() const { return Index > 0; }
	bool IsImport() const { return Index < 0; }
	int32 ToExport() const { return Index - 1; }
	int32 ToImport() const { return -(Index + 1); }
	int32 ForDebugging() const { return Index; }

	bool operator==(const FPackageIndex& Other) const = default;
	friend uint32 GetTypeHash(const FPackageIndex& Value) { return static_cast<uint32>(Value.Index); }
	friend FArchive& operator<<(FArchive& Ar, FPackageIndex& Value)
	{
		Ar << Value.Index;
		return Ar;
	}

private:
	explicit FPackageIndex(int32 InIndex)
		: Index(InIndex)
	{
	}
	int32 Index = 0;
};

struct FObjectResource
{
	FName ObjectName;
	/** Null where the outer is the package itself (exports) or there is none (imported packages). */
	FPackageIndex OuterIndex;
};

/** An object that the package has. */
struct COREUOBJECT_API FObjectExport : public FObjectResource
{
	/** Null means the object is a UClass. */
	FPackageIndex ClassIndex;
	FPackageIndex SuperIndex;
	FPackageIndex TemplateIndex;
	EObjectFlags ObjectFlags = RF_NoFlags;
	int64 SerialSize = 0;
	int64 SerialOffset = 0;
	/** Where the tagged properties are, relative to SerialOffset. */
	int64 ScriptSerializationStartOffset = 0;
	int64 ScriptSerializationEndOffset = 0;
	bool bForcedExport = false;
	bool bNotForClient = false;
	bool bNotForServer = false;
	bool bNotAlwaysLoadedForEditorGame = true;
	bool bIsAsset = false;
	bool bIsInheritedInstance = false;
	bool bGeneratePublicHash = false;
	uint32 PackageFlags = 0;
	/** In older packages alone. */
	FGuid PackageGuid;
	int32 FirstExportDependency = -1;
	int32 SerializationBeforeSerializationDependencies = 0;
	int32 CreateBeforeSerializationDependencies = 0;
	int32 SerializationBeforeCreateDependencies = 0;
	int32 CreateBeforeCreateDependencies = 0;
	/** Null before the object is made and after it is gone. */
	FWeakObjectPtr Object;

	/** In the form of the archive's version. */
	void Serialize(FArchive& Ar);
};

/** An object of another package that the package refers to. */
struct COREUOBJECT_API FObjectImport : public FObjectResource
{
	FName ClassPackage;
	FName ClassName;
	/** Set when the object is in a package other than its outermost's. */
	FName PackageName;
	bool bImportOptional = false;
	FWeakObjectPtr XObject;

	void Serialize(FArchive& Ar);
};
