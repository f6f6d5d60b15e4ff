#include "Blueprint/VexelBlueprintPropType.h"

#include "Blueprint/VexelBlueprintEnums.h"

void FVexelBlueprintPropType::ToJson(const TSharedRef<FJsonObject>& Object) const
{
	Object->SetStringField(TEXT("id"), Id.ToString());
	Object->SetStringField(TEXT("category"), Category);
	Object->SetStringField(TEXT("container"), VexelBlueprintWords::GetWord(Container));
	Object->SetStringField(TEXT("keywords"), Keywords);
	Object->SetStringField(TEXT("description"), Description);
}

bool FVexelBlueprintPropType::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	if (!Object->TryGetStringField(TEXT("id"), Text))
	{
		return false;
	}
	Id = TVexelPropTypeId(Text);
	Container = EPinContainerType::None;
	if (Object->TryGetStringField(TEXT("container"), Text))
	{
		VexelBlueprintWords::FindByWord(Text, Container);
	}
	Object->TryGetStringField(TEXT("category"), Category);
	Object->TryGetStringField(TEXT("keywords"), Keywords);
	Object->TryGetStringField(TEXT("description"), Description);
	return true;
}
