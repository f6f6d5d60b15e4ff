#pragma once

#include "HeaderParser/TypeIndex.h"

#include <set>

namespace HeaderTool
{
/** Functions of this and other files that the emitted data calls, as declarations. */
class FForeignFunctions
{
public:
	/** Each answers the expression that calls the function, and remembers to declare it. */
	std::string Class(const std::string& Name);
	/** Not for an intrinsic class. */
	std::string CompleteClass(const std::string& Name);
	std::string Struct(const std::string& Name);
	std::string Enum(const std::string& Name);
	std::string Delegate(const std::string& Name);

	[[nodiscard]] const std::set<std::string>& Declarations() const { return Lines; }

private:
	std::set<std::string> Lines;
};

/** Writes FPropertyParams constants of one type's members or one function's parameters. */
class FPropertyEmitter
{
public:
	/** OwnerCpp is the C++ type that members belong to, empty for parameters. */
	FPropertyEmitter(const HeaderParser::FTypeIndex& InTypes, FForeignFunctions& InForeign, std::string InOwnerCpp)
		: Types(InTypes)
		, Foreign(InForeign)
		, OwnerCpp(std::move(InOwnerCpp))
	{
	}

	/** Adds the property to the array that Finish() writes. */
	void Add(const HeaderParser::FPropertyDeclaration& Property);
	/** All lines: metadata, inner properties, and the array `Properties` when there is any. */
	[[nodiscard]] std::string Finish() const;
	/** "Properties, N" or "nullptr, 0". */
	[[nodiscard]] std::string Reference() const;

private:
	struct FParams
	{
		std::string Name;
		std::string Kind;
		uint64_t Flags = 0;
		std::string ArrayDim = "1";
		std::string Offset = "0";
		std::string ElementSize;
		std::string TypeFunction = "nullptr";
		std::string MetaClassFunction = "nullptr";
		std::string SetBit = "nullptr";
		std::string Inner = "nullptr";
		std::string Value = "nullptr";
		std::string RepNotify = "nullptr";
		std::string MetaData = "nullptr, 0";

		[[nodiscard]] std::string Initialiser() const;
	};

	/** Fills in what follows from the type; writes inner properties first. */
	void Describe(const HeaderParser::FTypeReference& Type, const std::string& Name, FParams& Out);
	void DescribeNamed(const HeaderParser::FTypeReference& Type, const std::string& Name, FParams& Out);
	std::string AddInner(const HeaderParser::FTypeReference& Type, const std::string& Name, const char* Suffix);
	std::string AddUnderlying(const std::string& Name, const HeaderParser::FEnumDeclaration* Enum);
	void DescribeMember(const HeaderParser::FPropertyDeclaration& Property, FParams& Out);

	const HeaderParser::FTypeIndex& Types;
	FForeignFunctions& Foreign;
	std::string OwnerCpp;
	std::string Preamble;
	std::vector<std::string> Rows;
};

/** Writes `static constexpr FMetaDataPairParam Name[]`; nothing for no pairs. */
[[nodiscard]] std::string EmitMetaData(const std::string& Name, const HeaderParser::FMetaData& MetaData);
/** "Name, N" or "nullptr, 0". */
[[nodiscard]] std::string MetaDataReference(const std::string& Name, const HeaderParser::FMetaData& MetaData);
}
