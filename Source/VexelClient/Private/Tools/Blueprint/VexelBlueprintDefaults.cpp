#include "Tools/Blueprint/VexelBlueprintDefaults.h"

#include "Lum/LumRetypedValue.h"
#include "Lum/LumVariableEdits.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UnrealType.h"

namespace
{
constexpr int32 MaxDescribed = 50;

FString ExportText(const FProperty& Property, const UObject& Object)
{
	FString Text;
	Property.ExportTextItem_InContainer(Text, &Object, nullptr, nullptr, PPF_None);
	return Text;
}

/** Empty where nothing is lost. */
FString Describe(const FString& Value, const FProperty& NewProperty, const FString& Where)
{
	const TOptional<FString> Converted = LumRetypedValue::Convert(Value, NewProperty);
	if (!Converted)
	{
		return FString::Printf(TEXT("The default value '%s' of %s does not fit the new type and is lost"), *Value, *Where);
	}
	const bool bIsCut = Converted->Len() < Value.Len() && Value.StartsWith(*Converted) && Value.IsNumeric() &&
		FCString::Atod(*Value) != FCString::Atod(**Converted);
	return bIsCut ? FString::Printf(TEXT("The default value '%s' of %s becomes '%s'"), *Value, *Where, **Converted) : FString();
}

void Add(FString Text, TArray<FString>& OutTexts)
{
	if (!Text.IsEmpty())
	{
		OutTexts.Add(MoveTemp(Text));
	}
}

const FBPVariableDescription* Find(const TArray<FBPVariableDescription>& Variables, const FGuid& Guid)
{
	return Variables.FindByPredicate([&Guid](const FBPVariableDescription& Variable)
		{ return Variable.VarGuid == Guid; });
}

/** The objects that are made from the class's default object, those of derived classes among them, and have another value. */
TArray<UObject*> FindOverriding(UObject& Defaults, const FProperty& Property)
{
	TArray<UObject*> Instances;
	Defaults.GetArchetypeInstances(Instances);
	return Instances.FilterByPredicate([&Property](const UObject* Instance)
		{
			const UObject* const Archetype = Instance->GetArchetype();
			return IsValid(Instance) && Instance->GetClass()->IsChildOf(Property.GetOwnerClass()) && Archetype &&
				!Property.Identical_InContainer(Instance, Archetype, 0, PPF_DeepComparison); });
}

FString DescribeOwner(const UObject& Object)
{
	const UObject* const Maker = Object.GetClass()->ClassGeneratedBy;
	return Maker && Object.HasAnyFlags(RF_ClassDefaultObject) ? Maker->GetName() : Object.GetName();
}

/** The member as the class has it that objects are made of. */
const FProperty* FindCompiled(const UClass* Class, const FGuid& Guid)
{
	const UBlueprintGeneratedClass* const Generated = Cast<UBlueprintGeneratedClass>(Class);
	const FName Name = Generated ? Generated->FindPropertyNameFromGuid(Guid) : NAME_None;
	return Name.IsNone() ? nullptr : Class->FindPropertyByName(Name);
}
}

FVexelBlueprintDefaults::FVexelBlueprintDefaults(UBlueprint& InBlueprint)
	: Blueprint(&InBlueprint)
{
	const auto Take = [](const FBPVariableDescription& Variable, const FString& Default, const FProperty* Property)
	{
		const bool bIsInitial = !Property || LumRetypedValue::IsInitial(Default, *Property);
		return FMember{Variable.VarGuid, Variable.VarType, bIsInitial ? FString() : Default};
	};
	for (const FBPVariableDescription& Variable : InBlueprint.NewVariables)
	{
		const FString Default = LumVariableEdits::GetDefaultText(InBlueprint, Variable);
		const UClass* const Skeleton = InBlueprint.SkeletonGeneratedClass;
		Members.Add(Take(Variable, Default, Skeleton ? Skeleton->FindPropertyByName(Variable.VarName) : nullptr));
	}
	for (const UEdGraph* const Graph : InBlueprint.FunctionGraphs)
	{
		UK2Node_FunctionEntry* const Entry = Cast<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(Graph));
		const UFunction* const Function = Entry ? LumVariableEdits::FindFunction(*Graph) : nullptr;
		if (Function && !Entry->LocalVariables.IsEmpty())
		{
			FFunction& Taken = Functions.AddDefaulted_GetRef();
			Taken.Entry = Entry;
			for (const FBPVariableDescription& Local : Entry->LocalVariables)
			{
				Taken.Locals.Add(Take(Local, Local.DefaultValue, Function->FindPropertyByName(Local.VarName)));
			}
		}
	}
}

TArray<FString> FVexelBlueprintDefaults::DescribeLost() const
{
	TArray<FString> Texts;
	for (const FMember& Member : Members)
	{
		DescribeLost(Member, Texts);
	}
	for (const FFunction& Function : Functions)
	{
		DescribeLost(Function, Texts);
	}
	const int32 NumMore = Texts.Num() - MaxDescribed;
	if (NumMore > 0)
	{
		Texts.SetNum(MaxDescribed);
		Texts.Add(FString::Printf(TEXT("%d more default values are lost"), NumMore));
	}
	return Texts;
}

void FVexelBlueprintDefaults::DescribeLost(const FMember& Member, TArray<FString>& OutTexts) const
{
	const FBPVariableDescription* const Variable = Find(Blueprint->NewVariables, Member.Guid);
	const UClass* const Skeleton = Blueprint->SkeletonGeneratedClass;
	const FProperty* const New = Variable && Skeleton ? Skeleton->FindPropertyByName(Variable->VarName) : nullptr;
	if (!New || Variable->VarType == Member.Type)
	{
		return;
	}
	const FString Name = Variable->VarName.ToString();
	if (!Member.Default.IsEmpty())
	{
		Add(Describe(Member.Default, *New, FString::Printf(TEXT("'%s'"), *Name)), OutTexts);
	}
	const FProperty* const Compiled = FindCompiled(Blueprint->GeneratedClass, Member.Guid);
	UObject* const Defaults = Compiled ? Blueprint->GeneratedClass->GetDefaultObject(false) : nullptr;
	for (const UObject* const Object : Defaults ? FindOverriding(*Defaults, *Compiled) : TArray<UObject*>())
	{
		const FString Where = FString::Printf(TEXT("'%s' in '%s'"), *Name, *DescribeOwner(*Object));
		Add(Describe(ExportText(*Compiled, *Object), *New, Where), OutTexts);
	}
}

void FVexelBlueprintDefaults::DescribeLost(const FFunction& Function, TArray<FString>& OutTexts) const
{
	const UK2Node_FunctionEntry* const Entry = Function.Entry.Get();
	const UFunction* const Now = Entry && Entry->GetGraph() ? LumVariableEdits::FindFunction(*Entry->GetGraph()) : nullptr;
	for (const FMember& Local : Function.Locals)
	{
		const FBPVariableDescription* const Variable = Now ? Find(Entry->LocalVariables, Local.Guid) : nullptr;
		const FProperty* const New = Variable ? Now->FindPropertyByName(Variable->VarName) : nullptr;
		if (New && Variable->VarType != Local.Type && !Local.Default.IsEmpty())
		{
			const FString Where =
				FString::Printf(TEXT("'%s' in function '%s'"), *Variable->VarName.ToString(), *Entry->GetGraph()->GetName());
			Add(Describe(Local.Default, *New, Where), OutTexts);
		}
	}
}
