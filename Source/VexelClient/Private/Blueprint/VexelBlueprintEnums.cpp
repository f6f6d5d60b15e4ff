#include "Blueprint/VexelBlueprintEnums.h"

namespace
{
template <typename EnumType>
struct TWord
{
	EnumType Value;
	const TCHAR* Word;
};

constexpr TWord<EEdGraphPinDirection> DirectionWords[] = {
	{EGPD_Input, TEXT("input")},
	{EGPD_Output, TEXT("output")},
};

constexpr TWord<EPinContainerType> ContainerWords[] = {
	{EPinContainerType::None, TEXT("none")},
	{EPinContainerType::Array, TEXT("array")},
	{EPinContainerType::Set, TEXT("set")},
	{EPinContainerType::Map, TEXT("map")},
};

constexpr TWord<EGraphType> GraphTypeWords[] = {
	{GT_Function, TEXT("function")},
	{GT_Ubergraph, TEXT("ubergraph")},
	{GT_Macro, TEXT("macro")},
	{GT_Animation, TEXT("animation")},
	{GT_StateMachine, TEXT("state_machine")},
};

constexpr TWord<EBlueprintType> BlueprintTypeWords[] = {
	{BPTYPE_Normal, TEXT("normal")},
	{BPTYPE_Const, TEXT("const")},
	{BPTYPE_MacroLibrary, TEXT("macro_library")},
	{BPTYPE_Interface, TEXT("interface")},
	{BPTYPE_LevelScript, TEXT("level_script")},
	{BPTYPE_FunctionLibrary, TEXT("function_library")},
};

template <typename EnumType, SIZE_T Num>
const TCHAR* GetWordIn(const TWord<EnumType> (&Words)[Num], EnumType Value)
{
	for (const TWord<EnumType>& Entry : Words)
	{
		if (Entry.Value == Value)
		{
			return Entry.Word;
		}
	}
	return TEXT("unknown");
}

template <typename EnumType, SIZE_T Num>
bool FindByWordIn(const TWord<EnumType> (&Words)[Num], const FString& Word, EnumType& OutValue)
{
	for (const TWord<EnumType>& Entry : Words)
	{
		if (Word == Entry.Word)
		{
			OutValue = Entry.Value;
			return true;
		}
	}
	return false;
}
}

const TCHAR* VexelBlueprintWords::GetWord(EEdGraphPinDirection Direction)
{
	return GetWordIn(DirectionWords, Direction);
}

const TCHAR* VexelBlueprintWords::GetWord(EPinContainerType Container)
{
	return GetWordIn(ContainerWords, Container);
}

const TCHAR* VexelBlueprintWords::GetWord(EGraphType GraphType)
{
	return GetWordIn(GraphTypeWords, GraphType);
}

const TCHAR* VexelBlueprintWords::GetWord(EBlueprintType BlueprintType)
{
	return GetWordIn(BlueprintTypeWords, BlueprintType);
}

bool VexelBlueprintWords::FindByWord(const FString& Word, EEdGraphPinDirection& OutDirection)
{
	return FindByWordIn(DirectionWords, Word, OutDirection);
}

bool VexelBlueprintWords::FindByWord(const FString& Word, EPinContainerType& OutContainer)
{
	return FindByWordIn(ContainerWords, Word, OutContainer);
}
