#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/TopLevelAssetPath.h"

struct FPropertyTag;

/** The path of an object that need not be loaded: "/Game/Dir/Asset.Asset:Inner". */
struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() = default;
	FSoftObjectPath(TYPE_OF_NULLPTR) {}
	FSoftObjectPath(const FTopLevelAssetPath& InAssetPath, FString InSubPathString = FString())
		: AssetPath(InAssetPath)
		, SubPathString(MoveTemp(InSubPathString))
	{
	}
	FSoftObjectPath(FName InPackageName, FName InAssetName, FString InSubPathString = FString())
		: FSoftObjectPath(FTopLevelAssetPath(InPackageName, InAssetName), MoveTemp(InSubPathString))
	{
	}
	explicit FSoftObjectPath(const FString& PathString) { SetPath(PathString); }
	explicit FSoftObjectPath(FStringView PathString) { SetPath(PathString); }
	explicit FSoftObjectPath(const TCHAR* PathString) { SetPath(FStringView(PathString)); }
	explicit FSoftObjectPath(FName PathName) { SetPath(PathName.ToString()); }
	FSoftObjectPath(const UObject* InObject);

	/** Takes paths and export text. A path of no package becomes empty. */
	void SetPath(FStringView Path);
	void SetPath(const FString& Path) { SetPath(FStringView(Path)); }
	void SetPath(const FTopLevelAssetPath& InAssetPath, FString InSubPathString = FString());
	void SetSubPathString(const FString& InSubPathString) { SubPathString = InSubPathString; }
	void Reset() { *this = FSoftObjectPath(); }

	FString ToString() const;
	void ToString(FString& OutString) const { OutString = ToString(); }
	FTopLevelAssetPath GetAssetPath() const { return AssetPath; }
	FString GetAssetPathString() const { return AssetPath.IsNull() ? FString() : AssetPath.ToString(); }
	FName GetAssetPathName() const { return AssetPath.ToFName(); }
	const FString& GetSubPathString() const { return SubPathString; }
	FString GetLongPackageName() const { return AssetPath.IsNull() ? FString() : AssetPath.GetPackageName().ToString(); }
	FName GetLongPackageFName() const { return AssetPath.GetPackageName(); }
	FString GetAssetName() const { return AssetPath.IsNull() ? FString() : AssetPath.GetAssetName().ToString(); }
	FName GetAssetFName() const { return AssetPath.GetAssetName(); }
	FSoftObjectPath GetWithoutSubPath() const { return FSoftObjectPath(AssetPath); }
	bool IsValid() const { return AssetPath.IsValid(); }
	bool IsNull() const { return AssetPath.IsNull(); }
	bool IsAsset() const { return IsValid() && SubPathString.IsEmpty(); }
	bool IsSubobject() const { return IsValid() && !SubPathString.IsEmpty(); }

	/** Null when the object is not in memory. */
	UObject* ResolveObject() const;
	/** Loads the package when need be. */
	UObject* TryLoad(struct FUObjectSerializeContext* InLoadContext = nullptr) const;

	bool operator==(const FSoftObjectPath& Other) const { return AssetPath == Other.AssetPath && SubPathString == Other.SubPathString; }
	bool LexicalLess(const FSoftObjectPath& Other) const { return ToString() < Other.ToString(); }
	FORCEINLINE friend uint32 GetTypeHash(const FSoftObjectPath& Path)
	{
		return HashCombine(GetTypeHash(Path.AssetPath), GetTypeHash(Path.SubPathString));
	}

	bool Serialize(FArchive& Ar);
	/** The path itself, without asking the archive how it stores soft paths. */
	void SerializePath(FArchive& Ar);
	bool ExportTextItem(
		FString& ValueStr, const FSoftObjectPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);
	/** Reads properties that were names, strings or object references before. */
	bool SerializeFromMismatchedTag(const FPropertyTag& Tag, FArchive& Ar);
	bool PreSavePath(bool* bReportSoftObjectPathRedirects = nullptr) { return false; }
	void PostLoadPath(FArchive* InArchive) const {}
	bool FixupForPIE() { return false; }

	static FSoftObjectPath GetOrCreateIDForObject(const UObject* Object) { return FSoftObjectPath(Object); }
	static int32 GetCurrentTag() { return 0; }

private:
	FTopLevelAssetPath AssetPath;
	FString SubPathString;
};

/** The path of a class. */
struct COREUOBJECT_API FSoftClassPath : public FSoftObjectPath
{
	FSoftClassPath() = default;
	FSoftClassPath(const FString& PathString)
		: FSoftObjectPath(PathString)
	{
	}
	FSoftClassPath(const UClass* InClass);

	UClass* ResolveClass() const;
	template <typename T>
	UClass* TryLoadClass() const
	{
		return TryLoadClassOf(T::StaticClass());
	}
	static FSoftClassPath GetOrCreateIDForClass(const UClass* InClass) { return FSoftClassPath(InClass); }
	bool SerializeFromMismatchedTag(const FPropertyTag& Tag, FArchive& Ar) { return FSoftObjectPath::SerializeFromMismatchedTag(Tag, Ar); }

private:
	/** Null when what the path names is no class below BaseClass. */
	UClass* TryLoadClassOf(const UClass* BaseClass) const;
};
