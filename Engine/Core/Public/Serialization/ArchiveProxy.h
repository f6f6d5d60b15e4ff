#pragma once

#include "Containers/UnrealString.h"
#include "Serialization/Archive.h"

/** An archive that hands everything on to another, so that subclasses change only what they mean to. */
class CORE_API FArchiveProxy : public FArchive
{
public:
	explicit FArchiveProxy(FArchive& InInnerArchive);

	FArchive& operator<<(FName& Value) override { return PassOn(Value); }
	FArchive& operator<<(FText& Value) override { return PassOn(Value); }
	FArchive& operator<<(UObject*& Value) override { return PassOn(Value); }
	FArchive& operator<<(FField*& Value) override { return PassOn(Value); }
	FArchive& operator<<(FLazyObjectPtr& Value) override { return PassOn(Value); }
	FArchive& operator<<(FObjectPtr& Value) override { return PassOn(Value); }
	FArchive& operator<<(FSoftObjectPath& Value) override { return PassOn(Value); }
	FArchive& operator<<(FSoftObjectPtr& Value) override { return PassOn(Value); }
	FArchive& operator<<(FWeakObjectPtr& Value) override { return PassOn(Value); }
	using FArchive::operator<<;

	FString GetArchiveName() const override;
	FLinker* GetLinker() override { return InnerArchive.GetLinker(); }
	void Serialize(void* V, int64 Length) override
	{
		InnerArchive.Serialize(V, Length);
		TakeOverError();
	}
	void SerializeIntPacked(uint32& Value) override
	{
		InnerArchive.SerializeIntPacked(Value);
		TakeOverError();
	}
	void Preload(UObject* Object) override { InnerArchive.Preload(Object); }
	void CountBytes(SIZE_T InNum, SIZE_T InMax) override { InnerArchive.CountBytes(InNum, InMax); }
	int64 Tell() override { return InnerArchive.Tell(); }
	int64 TotalSize() override { return InnerArchive.TotalSize(); }
	bool AtEnd() override { return InnerArchive.AtEnd(); }
	void Seek(int64 InPos) override { InnerArchive.Seek(InPos); }
	void Flush() override { InnerArchive.Flush(); }
	bool Close() override { return InnerArchive.Close(); }
	void SetError() override
	{
		FArchive::SetError();
		InnerArchive.SetError();
	}
	void UsingCustomVersion(const FGuid& Guid) override { InnerArchive.UsingCustomVersion(Guid); }
	const FCustomVersionContainer& GetCustomVersions() const override { return InnerArchive.GetCustomVersions(); }
	void SetCustomVersions(const FCustomVersionContainer& NewVersions) override { InnerArchive.SetCustomVersions(NewVersions); }
	void ResetCustomVersions() override { InnerArchive.ResetCustomVersions(); }
	void MarkScriptSerializationStart(const UObject* Object) override { InnerArchive.MarkScriptSerializationStart(Object); }
	void MarkScriptSerializationEnd(const UObject* Object) override { InnerArchive.MarkScriptSerializationEnd(Object); }
	bool IsProxyOf(FArchive* InOther) const override
	{
		return InOther == this || InOther == &InnerArchive || InnerArchive.IsProxyOf(InOther);
	}
	FUObjectSerializeContext* GetSerializeContext() override { return InnerArchive.GetSerializeContext(); }
	void SetSerializeContext(FUObjectSerializeContext* Context) override { InnerArchive.SetSerializeContext(Context); }
	void SetSerializedProperty(FProperty* InProperty) override
	{
		FArchive::SetSerializedProperty(InProperty);
		InnerArchive.SetSerializedProperty(InProperty);
	}

protected:
	void TakeOverError()
	{
		if (InnerArchive.IsError())
		{
			FArchive::SetError();
		}
	}

	FArchive& InnerArchive;

private:
	template <typename T>
	FArchive& PassOn(T& Value)
	{
		InnerArchive << Value;
		TakeOverError();
		return *this;
	}
};
