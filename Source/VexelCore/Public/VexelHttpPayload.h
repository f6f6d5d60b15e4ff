#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** An ordered list of key and value pairs: a query string, or a form-encoded body. */
class VEXELCORE_API FVexelHttpUrlParams
{
public:
	FVexelHttpUrlParams() = default;
	FVexelHttpUrlParams(const FVexelHttpUrlParams&) = default;
	FVexelHttpUrlParams(FVexelHttpUrlParams&&) = default;
	FVexelHttpUrlParams& operator=(const FVexelHttpUrlParams&) = default;
	FVexelHttpUrlParams& operator=(FVexelHttpUrlParams&&) = default;
	/** Overwrites the values: a form may carry a token. */
	~FVexelHttpUrlParams();

	FVexelHttpUrlParams& Add(const FString& Key, const FString& Value);

	/** "a=1&b=two%20words", in insertion order; everything but letters, digits and "-._~" of the UTF-8 text is escaped. */
	FString ToUrlEncodedString() const;

	bool IsEmpty() const { return Pairs.IsEmpty(); }

private:
	TArray<TTuple<FString, FString>> Pairs;
};

namespace VexelInternal::Http
{
/** A text as UTF-8 with everything but letters, digits and "-._~" escaped. */
VEXELCORE_API FString UrlEncode(const FString& Text);

/** A stretch of a body: bytes, or so many bytes of a file that is read while it is sent. */
struct FBodyPiece
{
	int64 GetNum() const { return Path.IsEmpty() ? Bytes.Num() : NumFileBytes; }

	TArray<uint8> Bytes;
	/** Empty for a piece of bytes. */
	FString Path;
	int64 NumFileBytes = 0;
};

/** Where a payload puts itself. */
class VEXELCORE_API IRequest
{
public:
	virtual ~IRequest() = default;
	virtual void SetContent(const FString& ContentType, TArray<FBodyPiece> Pieces) = 0;

	void SetContentBytes(const FString& ContentType, TArray<uint8> Bytes);
};

struct VEXELCORE_API FRequestBody final : public IRequest
{
	virtual void SetContent(const FString& ContentType, TArray<FBodyPiece> Pieces) override;

	FRequestBody() = default;
	FRequestBody(const FRequestBody&) = default;
	FRequestBody(FRequestBody&&) = default;
	FRequestBody& operator=(const FRequestBody&) = default;
	FRequestBody& operator=(FRequestBody&&) = default;
	virtual ~FRequestBody() override;

	int64 GetNum() const;

	FString ContentType;
	TArray<FBodyPiece> Pieces;
	/** Whether the bytes are overwritten when they go. */
	bool bSecret = false;
};
}

/** A text of any type, sent as UTF-8. */
struct FVexelHttpTextPayload
{
	FString ContentType;
	FString Text;
};

/** A multipart form of binary file parts. Closed once, before it is sent. */
class VEXELCORE_API FVexelHttpMultipartPayload
{
public:
	FVexelHttpMultipartPayload();

	void AppendBinaryFile(const FString& FieldName, const FString& FileName, TConstArrayView<uint8> Bytes);

	/**
	 * Adds a file of the disk, which is read while the form is sent and never held whole: it must stay as it is until then.
	 * False, and nothing is added, for a path that is no file.
	 */
	bool AppendFileFromDisk(const FString& FieldName, const FString& FileName, const FString& Path);

	/** Writes the closing boundary. */
	void CloseForm();

	bool IsClosed() const { return bClosed; }
	const FString& GetBoundary() const { return Boundary; }
	const TArray<VexelInternal::Http::FBodyPiece>& GetPieces() const { return Pieces; }

private:
	void BeginPart(const FString& FieldName, const FString& FileName);
	/** The bytes at the end of the form, in a piece of their own behind a file. */
	TArray<uint8>& GetOpenBytes();

	FString Boundary;
	TArray<VexelInternal::Http::FBodyPiece> Pieces;
	bool bClosed = false;
};

namespace VexelInternal::Http
{
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
struct VEXELCORE_API TPayloadHelper<FVexelHttpTextPayload>
{
	static bool SetRequestData(const FVexelHttpTextPayload& Payload, IRequest& Request);
};

template <>
struct VEXELCORE_API TPayloadHelper<FVexelHttpMultipartPayload>
{
	static bool SetRequestData(const FVexelHttpMultipartPayload& Payload, IRequest& Request);
};
}
