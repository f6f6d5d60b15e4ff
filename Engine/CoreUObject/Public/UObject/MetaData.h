#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtr.h"

/** Keys and texts of a package's objects, which is where those of types and enumerators are. */
class COREUOBJECT_API FMetaData
{
public:
	TMap<FWeakObjectPtr, TMap<FName, FString>> ObjectMetaDataMap;
	/** Of the package itself. */
	TMap<FName, FString> RootMetaDataMap;

	/** Empty where the key is missing. */
	const FString& GetValue(const UObject* Object, const TCHAR* Key) const;
	const FString& GetValue(const UObject* Object, FName Key) const;
	bool HasValue(const UObject* Object, const TCHAR* Key) const { return FindValue(Object, FName(Key, FNAME_Find)) != nullptr; }
	bool HasValue(const UObject* Object, FName Key) const { return FindValue(Object, Key) != nullptr; }
	const FString* FindValue(const UObject* Object, const TCHAR* Key) const { return FindValue(Object, FName(Key, FNAME_Find)); }
	const FString* FindValue(const UObject* Object, FName Key) const;
	bool HasObjectValues(const UObject* Object) const;
	void SetObjectValues(const UObject* Object, const TMap<FName, FString>& ObjectValues);
	void SetObjectValues(const UObject* Object, TMap<FName, FString>&& ObjectValues);
	void SetValue(const UObject* Object, const TCHAR* Key, const TCHAR* Value) { SetValue(Object, FName(Key), Value); }
	void SetValue(const UObject* Object, FName Key, const TCHAR* Value);
	void RemoveValue(const UObject* Object, const TCHAR* Key) { RemoveValue(Object, FName(Key, FNAME_Find)); }
	void RemoveValue(const UObject* Object, FName Key);

	/** Null when the object has none. */
	static TMap<FName, FString>* GetMapForObject(const UObject* Object);
	static void CopyMetadata(UObject* SourceObject, UObject* DestObject);
	/** Drops entries of objects that are gone or have moved to another package. */
	void RemoveMetaDataOutsidePackage(const class UPackage* MetaDataOwner);
};

/** The form in which packages up to 5.5 keep metadata: an object of the package. Loading puts its content into the package. */
class COREUOBJECT_API UMetaData : public UObject
{
	DECLARE_CLASS_INTRINSIC(UMetaData, UObject, CLASS_MatchedSerializers, "/Script/CoreUObject")

public:
	UMetaData() = default;
	explicit UMetaData(const FObjectInitializer& ObjectInitializer);
	void Serialize(FArchive& Ar) override;
	bool NeedsLoadForEditorGame() const { return true; }

	TMap<FWeakObjectPtr, TMap<FName, FString>> ObjectMetaDataMap;
	TMap<FName, FString> RootMetaDataMap;
};
