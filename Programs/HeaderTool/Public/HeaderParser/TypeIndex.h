#pragma once

#include "HeaderParser/Model.h"

#include <unordered_map>

namespace HeaderParser
{
/** Finds declarations by C++ name over many headers. Keeps pointers: the headers must outlive it. */
class FTypeIndex
{
public:
	void Add(const FHeader& Header);

	[[nodiscard]] const FClassDeclaration* FindClass(const std::string& Name) const { return Find(Classes, Name); }
	[[nodiscard]] const FStructDeclaration* FindStruct(const std::string& Name) const { return Find(Structs, Name); }
	[[nodiscard]] const FEnumDeclaration* FindEnum(const std::string& Name) const { return Find(Enums, Name); }
	[[nodiscard]] const FDelegateDeclaration* FindDelegate(const std::string& Name) const { return Find(Delegates, Name); }

private:
	template <typename T>
	using TByName = std::unordered_map<std::string, const T*>;

	template <typename T>
	static const T* Find(const TByName<T>& Map, const std::string& Name)
	{
		const auto Found = Map.find(Name);
		return Found == Map.end() ? nullptr : Found->second;
	}

	TByName<FClassDeclaration> Classes;
	TByName<FStructDeclaration> Structs;
	TByName<FEnumDeclaration> Enums;
	TByName<FDelegateDeclaration> Delegates;
};
}
