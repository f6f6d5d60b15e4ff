#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** An ordered list of key and value pairs: a query string, or a form-encoded body. */
class VEXELCORE_API FVexelHttpUrlParams
{
public:
	FVexelHttpUrlParams& Add(const FString& Key, const FString& Value);

	/** "a=1&b=two%20words", in insertion order; everything but letters, digits and "-._~" of the UTF-8 text is escaped. */
	FString ToUrlEncodedString() const;

	bool IsEmpty() const { return Pairs.IsEmpty(); }

private:
	TArray<TTuple<FString, FString>> Pairs;
};

/** A multipart form of binary file parts. Closed once, before it is sent. */
class VEXELCORE_API FVexelHttpMultipartPayload
{
public:
	FVexelHttpMultipartPayload();

	void AppendBinaryFile(const FString& FieldName, const FString& FileName, TConstArrayView<uint8> Bytes);
	/** Writes the closing boundary. */
	void CloseForm();

	bool IsClosed() const { return bClosed; }
	const FString& GetBoundary() const { return Boundary; }
	const TArray<uint8>& GetBytes() const { return Bytes; }

private:
	FString Boundary;
	TArray<uint8> Bytes;
	bool bClosed = false;
};

namespace VexelInternal::Http
{
/** Where a payload puts itself. */
class IRequest
{
public:
	virtual ~IRequest() = default;
	virtual void SetContent(const FString& ContentType, TArray<uint8> Bytes) = 0;
};

struct FRequestBody final : public IRequest
{
	virtual void SetContent(const FString& InContentType, TArray<uint8> InBytes) override
	{
		ContentType = InContentType;
		Bytes = MoveTemp(InBytes);
	}

	FString ContentType;
	TArray<uint8> Bytes;
};

/** One specialisation a kind of payload; SetRequestData answers false when the body cannot be set. */
template <typename T>
struct TPayloadHelper;

template <>
struct VEXELCORE_API TPayloadHelper<TSharedPtr<FJsonObject>>
{
	static bool SetRequestData(const TSharedPtr<FJsonObject>& Payload, IRequest& Request);
};

template <>
struct VEXELCORE_API TPayloadHelper<TSharedRef<FJsonObject>>
{
	static bool SetRequestData(const TSharedRef<FJsonObject>& Payload, IRequest& Request);
};

template <>
struct VEXELCORE_API TPayloadHelper<FVexelHttpUrlParams>
{
	static bool SetRequestData(const FVexelHttpUrlParams& Payload, IRequest& Request);
};

template <>
struct VEXELCORE_API TPayloadHelper<FVexelHttpMultipartPayload>
{
	static bool SetRequestData(const FVexelHttpMultipartPayload& Payload, IRequest& Request);
};
}
