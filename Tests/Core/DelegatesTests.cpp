#include "CoreMinimal.h"
#include "Delegates/DelegateObject.h"
#include "UObject/ScriptDelegates.h"

#include <gtest/gtest.h>

#include <vector>

/** Core knows objects by pointer only; these tests stand in for the module that has them. */
class UObject
{
public:
	virtual ~UObject() = default;
	void Use(int32 Value) { LastValue = Value; }

	int32 LastValue = 0;
};

namespace
{
DECLARE_DELEGATE_OneParam(FOnValue, int32);
DECLARE_DELEGATE_RetVal_TwoParams(FString, FMakeText, const FString&, int32);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnValueMulticast, int32);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnScriptValues, int8, Small, const FString&, Text);
DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(int32, FScriptAnswer, bool, bAsked);

struct FReceiver : TSharedFromThis<FReceiver>
{
	void OnValue(int32 Value) { Values.push_back(Value); }
	void OnValueWithPayload(int32 Value, FString Text, int32 Factor) { Values.push_back((Value + Text.Len()) * Factor); }
	int32 Count() const { return static_cast<int32>(Values.size()); }

	std::vector<int32> Values;
};

/** Objects by slot: a slot that is emptied turns the weak references to it null. */
class FSlotHost final : public UE::Core::IDelegateObjectHost
{
public:
	FSlotHost() { UE::Core::SetDelegateObjectHost(this); }
	~FSlotHost() override { UE::Core::SetDelegateObjectHost(nullptr); }

	UE::Core::FDelegateObject MakeWeak(const UObject* Object) override
	{
		Slots.push_back(const_cast<UObject*>(Object));
		return {static_cast<int32>(Slots.size()) - 1, 1};
	}
	UObject* Resolve(const UE::Core::FDelegateObject& Object) override { return Slots[static_cast<size_t>(Object.ObjectIndex)]; }
	bool HasFunction(UObject* Object, FName FunctionName) override { return FunctionName != FName(TEXT("Missing")); }
	bool CallFunction(UObject* Object, FName FunctionName, void* Parameters) override
	{
		Called.push_back(FunctionName);
		Handler(Parameters);
		return true;
	}
	void Collect(UObject* Object)
	{
		for (UObject*& Slot : Slots)
		{
			Slot = Slot == Object ? nullptr : Slot;
		}
	}

	std::vector<UObject*> Slots;
	std::vector<FName> Called;
	TFunction<void(void*)> Handler = [](void*) {};
};
}

TEST(Delegate, SharedBindingDiesWithItsObject)
{
	TSharedPtr<FReceiver> Receiver = MakeShared<FReceiver>();
	const FOnValue Delegate = FOnValue::CreateSP(Receiver.Get(), &FReceiver::OnValue);
	EXPECT_TRUE(Delegate.IsBoundToObject(Receiver.Get()));
	EXPECT_TRUE(Delegate.ExecuteIfBound(4));
	EXPECT_EQ(Receiver->Values, std::vector<int32>{4});
	Receiver.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(5));
}

TEST(Delegate, PayloadComesAfterTheArguments)
{
	FReceiver Receiver;
	FOnValue Delegate;
	Delegate.BindRaw(&Receiver, &FReceiver::OnValueWithPayload, FString(TEXT("abc")), 10);
	Delegate.Execute(2);
	EXPECT_EQ(Receiver.Values, std::vector<int32>{50});

	FMakeText MakeText;
	MakeText.BindLambda([](const FString& Text, int32 Number, const FString& Suffix)
		{ return Text + FString::FromInt(Number) + Suffix; },
		FString(TEXT("!")));
	EXPECT_EQ(MakeText.Execute(TEXT("n"), 3), FString(TEXT("n3!")));
}

TEST(Delegate, BindingMayUndoItselfWhileItRuns)
{
	FSimpleDelegate Delegate;
	const TSharedRef<int32> Held = MakeShared<int32>(0);
	Delegate.BindLambda(
		[&Delegate, Held]
		{
			Delegate.Unbind();
			*Held += 1;
		});
	Delegate.Execute();
	EXPECT_EQ(*Held, 1);
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_EQ(Held.GetSharedReferenceCount(), 1);
	EXPECT_DEATH(Delegate.Execute(), "unbound delegate");
}

TEST(MulticastDelegate, ListMayChangeInsideABroadcast)
{
	FOnValueMulticast Event;
	std::vector<std::string> Calls;
	FDelegateHandle Removed = Event.AddLambda([&](int32)
		{ Calls.push_back("removed"); });
	FDelegateHandle Self;
	Self = Event.AddLambda(
		[&](int32 Value)
		{
			Calls.push_back("self");
			EXPECT_TRUE(Event.Remove(Removed));
			EXPECT_TRUE(Event.Remove(Self));
			Event.AddLambda([&](int32)
				{ Calls.push_back("added"); });
			if (Value == 1)
			{
				Event.Broadcast(2);
			}
		});
	Event.Broadcast(1);
	// The inner broadcast sees the new list, the outer one neither what was removed nor what was added.
	EXPECT_EQ(Calls, (std::vector<std::string>{"self", "added"}));
	Calls.clear();
	Event.Broadcast(3);
	EXPECT_EQ(Calls, std::vector<std::string>{"added"});
}

TEST(MulticastDelegate, OwnerMayEndInsideABroadcast)
{
	TUniquePtr<FOnValueMulticast> Event = MakeUnique<FOnValueMulticast>();
	int32 NumCalls = 0;
	Event->AddLambda([&](int32)
		{ ++NumCalls; });
	Event->AddLambda([&](int32)
		{ Event.Reset(); });
	Event->Broadcast(1);
	EXPECT_FALSE(Event.IsValid());
	EXPECT_EQ(NumCalls, 1);
}

TEST(MulticastDelegate, RemoveAllTakesOneObjectsBindings)
{
	FOnValueMulticast Event;
	FReceiver First;
	FReceiver Second;
	Event.AddRaw(&First, &FReceiver::OnValue);
	Event.AddRaw(&Second, &FReceiver::OnValue);
	Event.AddRaw(&First, &FReceiver::OnValue);
	FOnValueMulticast Copy = Event;
	EXPECT_EQ(Event.RemoveAll(&First), 2);
	Event.Broadcast(1);
	EXPECT_EQ(First.Count(), 0);
	EXPECT_EQ(Second.Count(), 1);
	Copy.Broadcast(2);
	EXPECT_EQ(First.Count(), 2);
	Event.Clear();
	EXPECT_FALSE(Event.IsBound());
	EXPECT_FALSE(Event.Add(FOnValueMulticast::FDelegate()).IsValid());
}

TEST(Delegate, ObjectBindingsDieWithTheObject)
{
	FSlotHost Host;
	UObject Object;
	const FOnValue Method = FOnValue::CreateUObject(&Object, &UObject::Use);
	int32 NumLambdaCalls = 0;
	const FOnValue Lambda = FOnValue::CreateWeakLambda(&Object, [&](int32)
		{ ++NumLambdaCalls; });
	EXPECT_TRUE(Method.ExecuteIfBound(9));
	EXPECT_TRUE(Lambda.ExecuteIfBound(9));
	EXPECT_EQ(Object.LastValue, 9);
	EXPECT_EQ(Method.GetUObject(), &Object);
	Host.Collect(&Object);
	EXPECT_FALSE(Method.ExecuteIfBound(1));
	EXPECT_FALSE(Lambda.ExecuteIfBound(1));
	EXPECT_EQ(NumLambdaCalls, 1);
}

TEST(ScriptDelegate, ParametersLieAsTheFunctionsPropertiesDo)
{
	struct FParameters
	{
		int8 Small;
		FString Text;
	};
	FSlotHost Host;
	UObject Object;
	FString Received;
	Host.Handler = [&](void* Parameters)
	{
		const FParameters& Values = *static_cast<FParameters*>(Parameters);
		Received = Values.Text + FString::FromInt(Values.Small);
	};
	FOnScriptValues Event;
	FScriptDelegate Binding;
	Binding.BindUFunction(&Object, FName(TEXT("Use")));
	Event.Add(Binding);
	Event.Broadcast(-3, TEXT("text"));
	EXPECT_EQ(Received, FString(TEXT("text-3")));

	struct FAnswerParameters
	{
		bool bAsked;
		int32 ReturnValue;
	};
	Host.Handler = [](void* Parameters)
	{
		FAnswerParameters& Values = *static_cast<FAnswerParameters*>(Parameters);
		Values.ReturnValue = Values.bAsked ? 42 : -1;
	};
	FScriptAnswer Answer;
	Answer.BindUFunction(&Object, FName(TEXT("Answer")));
	EXPECT_EQ(Answer.Execute(true), 42);
}

TEST(ScriptDelegate, UnboundWithoutTheFunctionOrTheObject)
{
	FSlotHost Host;
	UObject Object;
	FScriptDelegate Delegate;
	Delegate.BindUFunction(&Object, FName(TEXT("Missing")));
	EXPECT_FALSE(Delegate.IsBound());
	Delegate.BindUFunction(&Object, FName(TEXT("Use")));
	EXPECT_TRUE(Delegate.IsBound());
	Host.Collect(&Object);
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_EQ(STATIC_FUNCTION_FNAME(TEXT("&UDoor::Open")), FName(TEXT("Open")));
}
