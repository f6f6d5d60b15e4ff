/** A door. */
UCLASS()
class GAME_API ADoor final : public AActor
{
	GENERATED_BODY()

public:
	ADoor();
	bool operator==(const ADoor& Other) const { return Raw == R"(})"; }
	enum class EState : uint8 { Open, Closed };
	template <typename T> TArray<T> Collect(T&& Value = {}) const; // all
};

namespace Game
{
ADoor::ADoor()
	: Super('{')
	, Size{1, 2}
{
}
}
