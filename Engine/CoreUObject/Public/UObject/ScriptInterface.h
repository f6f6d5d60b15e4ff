#pragma once

#include "UObject/ObjectPtr.h"
#include "UObject/UObjectBaseUtility.h"

/** An object and the address of an interface of it; the address is null when the interface is implemented by Blueprint. */
class COREUOBJECT_API FScriptInterface
{
public:
	FScriptInterface() = default;
	explicit FScriptInterface(UObject* InObjectPointer, void* InInterfacePointer = nullptr)
		: ObjectPointer(InObjectPointer)
		, InterfacePointer(InInterfacePointer)
	{
	}

	FORCEINLINE UObject* GetObject() const { return ObjectPointer; }
	FORCEINLINE UObject*& GetObjectRef() { return ObjectPointer; }
	FORCEINLINE TObjectPtr<UObject>& GetObjectPtrRef() { return reinterpret_cast<TObjectPtr<UObject>&>(ObjectPointer); }
	FORCEINLINE void* GetInterface() const { return ObjectPointer ? InterfacePointer : nullptr; }
	void SetObject(UObject* InObjectPointer)
	{
		ObjectPointer = InObjectPointer;
		InterfacePointer = nullptr;
	}
	void SetInterface(void* InInterfacePointer) { InterfacePointer = InInterfacePointer; }
	bool operator==(const FScriptInterface& Other) const
	{
		return GetInterface() == Other.GetInterface() && ObjectPointer == Other.ObjectPointer;
	}
	friend uint32 GetTypeHash(const FScriptInterface& Instance) { return ::PointerHash(Instance.ObjectPointer); }
	friend FArchive& operator<<(FArchive& Ar, FScriptInterface& Value)
	{
		Ar << Value.ObjectPointer;
		return Ar;
	}

private:
	UObject* ObjectPointer = nullptr;
	void* InterfacePointer = nullptr;
};

/** An object that implements InterfaceType, an I-class. */
template <typename InterfaceType>
class TScriptInterface : public FScriptInterface
{
public:
	TScriptInterface() = default;
	TScriptInterface(TYPE_OF_NULLPTR) {}
	template <typename U>
	requires(std::is_base_of_v<UObjectBaseUtility, U>)
		TScriptInterface(U* Source)
	{
		*this = Source;
	}
	template <typename U>
	TScriptInterface(const TObjectPtr<U>& Source)
	{
		*this = Source.Get();
	}

	template <typename U>
	requires(std::is_base_of_v<UObjectBaseUtility, U>)
		TScriptInterface&
		operator=(U* Source)
	{
		SetObject(Source);
		if (Source)
		{
			SetInterface(Source->GetNativeInterfaceAddress(InterfaceType::UClassType::StaticClass()));
		}
		return *this;
	}
	TScriptInterface& operator=(TYPE_OF_NULLPTR)
	{
		SetObject(nullptr);
		return *this;
	}

	InterfaceType* operator->() const { return GetInterface(); }
	InterfaceType& operator*() const { return *GetInterface(); }
	InterfaceType* GetInterface() const { return static_cast<InterfaceType*>(FScriptInterface::GetInterface()); }
	explicit operator bool() const { return GetInterface() != nullptr; }
	bool operator==(const TScriptInterface& Other) const = default;
	friend FArchive& operator<<(FArchive& Ar, TScriptInterface& Interface)
	{
		UObject* Object = Interface.GetObject();
		Ar << Object;
		if (Ar.IsLoading())
		{
			Interface = Object;
		}
		return Ar;
	}
};
