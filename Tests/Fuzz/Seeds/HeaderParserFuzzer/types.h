UENUM(BlueprintType)
enum class EDoor : uint8 { Open UMETA(DisplayName = "Open door"), Closed = 1 << 2, Count UMETA(Hidden) };
UENUM()
namespace EOld { enum Type { A, B = A + 3 }; }
USTRUCT(BlueprintType)
struct FPart : public FTableRowBase
{
	GENERATED_USTRUCT_BODY()
	UPROPERTY() TEnumAsByte<EOld::Type> Old = EOld::A;
	UPROPERTY() TArray<TSubclassOf<class AActor>> Classes;
};
UINTERFACE(MinimalAPI) class UUsable : public UInterface { GENERATED_BODY() };
class IUsable
{
	GENERATED_BODY()
	UFUNCTION(BlueprintImplementableEvent) int32 Use(TScriptInterface<IUsable> Other);
};
