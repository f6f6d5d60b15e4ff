#pragma once

#include "Lum/LumVariable.h"
#include "UObject/WeakObjectPtr.h"

class UBlueprint;
struct FBPVariableDescription;

/** A variable that a description in a Blueprint declares: its name, type, category and flags come from there. */
class FLumDescriptionBasedVariable : public ILumEditableVariable
{
public:
	FLumDescriptionBasedVariable(UBlueprint& Blueprint, FName InName);

	virtual TVexelExpected<TVexelPropId> GetPropId() const override;
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override;
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override;
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override;
	virtual TVexelExpected<FString> GetCategory() const override;
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;
	/** As the kind of the value does. */
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;
	virtual TVexelExpected<void> OnImport() override;
	virtual const ILumCompoundProperty* AsCompoundProperty() const override;

	/** The variable's default value; null where it has a type that no class of the Blueprint can hold. */
	virtual TVexelExpected<TSharedPtr<ILumProperty>> CreateLumValueWrapper() const = 0;

protected:
	/** Valid until the Blueprint changes. */
	virtual TVexelExpected<const FBPVariableDescription*> GetBpVariableDescription() const = 0;
	TVexelExpected<UBlueprint*> GetBlueprint() const;
	/** The description of this variable's name among those; an error when it is not there. */
	TVexelExpected<const FBPVariableDescription*> FindDescription(const TArray<FBPVariableDescription>& Descriptions) const;

	const FName Name;

private:
	TVexelExpected<TSharedPtr<ILumProperty>> GetValue() const;

	/** The value while somebody works in it: its compound must find it again. */
	mutable TSharedPtr<ILumProperty> OpenValue;
	TWeakObjectPtr<UBlueprint> WeakBlueprint;
};
