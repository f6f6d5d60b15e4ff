#pragma once

#include "EdGraphSchema_K2.h"
#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"

/** Types of variables and parameters. */
namespace PinTypes
{
inline FEdGraphPinType Make(FName Category, FName SubCategory = NAME_None, UObject* SubCategoryObject = nullptr,
	EPinContainerType Container = EPinContainerType::None)
{
	return FEdGraphPinType(Category, SubCategory, SubCategoryObject, Container, false, FEdGraphTerminalType());
}

inline FEdGraphPinType Bool()
{
	return Make(UEdGraphSchema_K2::PC_Boolean);
}

inline FEdGraphPinType Int()
{
	return Make(UEdGraphSchema_K2::PC_Int);
}

inline FEdGraphPinType Double()
{
	return Make(UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double);
}

inline FEdGraphPinType Name()
{
	return Make(UEdGraphSchema_K2::PC_Name);
}

inline FEdGraphPinType NameArray()
{
	return Make(UEdGraphSchema_K2::PC_Name, NAME_None, nullptr, EPinContainerType::Array);
}

inline FEdGraphPinType VectorArray()
{
	return Make(UEdGraphSchema_K2::PC_Struct, NAME_None, TBaseStructure<FVector>::Get(), EPinContainerType::Array);
}
}
