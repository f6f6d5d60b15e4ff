#pragma once

#include "Containers/UnrealString.h"

/** A namespace or a key: compared with its case. */
class FTextKey
{
public:
	FTextKey() = default;
	FTextKey(const TCHAR* InStr)
		: Text(InStr)
	{
	}
	FTextKey(const FString& InStr)
		: Text(InStr)
	{
	}
	FTextKey(FString&& InStr)
		: Text(MoveTemp(InStr))
	{
	}

	const FString& GetChars() const { return Text; }
	const FString& ToString() const { return Text; }
	bool IsEmpty() const { return Text.IsEmpty(); }
	void Reset() { Text.Reset(); }
	friend bool operator==(const FTextKey& A, const FTextKey& B) { return A.Text.Equals(B.Text, ESearchCase::CaseSensitive); }
	friend bool operator!=(const FTextKey& A, const FTextKey& B) { return !(A == B); }
	friend uint32 GetTypeHash(const FTextKey& Key) { return GetTypeHash(Key.Text); }

private:
	FString Text;
};

/** The identity of a text for translation. */
class FTextId
{
public:
	FTextId() = default;
	FTextId(FTextKey InNamespace, FTextKey InKey)
		: Namespace(MoveTemp(InNamespace))
		, Key(MoveTemp(InKey))
	{
	}

	const FTextKey& GetNamespace() const { return Namespace; }
	const FTextKey& GetKey() const { return Key; }
	bool IsEmpty() const { return Namespace.IsEmpty() && Key.IsEmpty(); }
	void Reset()
	{
		Namespace.Reset();
		Key.Reset();
	}
	friend bool operator==(const FTextId& A, const FTextId& B) { return A.Namespace == B.Namespace && A.Key == B.Key; }
	friend bool operator!=(const FTextId& A, const FTextId& B) { return !(A == B); }
	friend uint32 GetTypeHash(const FTextId& Id) { return GetTypeHash(Id.Namespace) * 31 + GetTypeHash(Id.Key); }

private:
	FTextKey Namespace;
	FTextKey Key;
};
