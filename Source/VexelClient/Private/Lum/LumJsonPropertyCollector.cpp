#include "Lum/LumJsonPropertyCollector.h"

#include "Lum/LumProperty.h"
#include "Lum/LumVariable.h"

namespace
{
void MoveUnlessEmpty(const TSharedRef<FJsonObject>& Object, const TCHAR* Key, TArray<TSharedPtr<FJsonValue>>& Values)
{
	if (!Values.IsEmpty())
	{
		Object->SetArrayField(Key, MoveTemp(Values));
		Values.Reset();
	}
}
}

TVexelExpected<void> FLumJsonPropertyCollector::Property(const TSharedRef<ILumProperty>& Property)
{
	VEXEL_TRY(const TSharedRef<FJsonObject> Object, Property->JsonExportPropertyObject(Context), "while collecting a property");
	Properties.Add(MakeShared<FJsonValueObject>(Object));
	return {};
}

TVexelExpected<void> FLumJsonPropertyCollector::Variable(const TSharedRef<ILumVariable>& Variable)
{
	VEXEL_TRY(const TSharedRef<FJsonObject> Object, Variable->JsonExportPropertyObject(Context), "while collecting a variable");
	Variables.Add(MakeShared<FJsonValueObject>(Object));
	return {};
}

void FLumJsonPropertyCollector::MoveTo(const TSharedRef<FJsonObject>& Object, const TCHAR* PropertiesKey, const TCHAR* VariablesKey)
{
	MoveUnlessEmpty(Object, PropertiesKey, Properties);
	MoveUnlessEmpty(Object, VariablesKey, Variables);
}
