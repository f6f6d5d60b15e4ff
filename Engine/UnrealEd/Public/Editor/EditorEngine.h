#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "Engine/Engine.h"
#include "Subsystems/SubsystemCollection.h"
#include "TimerManager.h"

#include "EditorEngine.generated.h"

class UWorld;

/** The editor: its world and its subsystems. */
UCLASS(config = Engine, transient)
class UNREALED_API UEditorEngine : public UEngine
{
	GENERATED_BODY()

public:
	/** Makes the editor's world and the subsystems. Called once, by the host's start. */
	void InitializeEditor();
	/** Takes the subsystems down, then the world. */
	void ShutdownEditor();

	/** The first call opens the project's startup map, if it has one. */
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	template <typename TSubsystemClass>
	TSubsystemClass* GetEditorSubsystem() const
	{
		return static_cast<TSubsystemClass*>(EditorSubsystemCollection.GetSubsystemInternal(TSubsystemClass::StaticClass()));
	}
	UEditorSubsystem* GetEditorSubsystemBase(TSubclassOf<UEditorSubsystem> SubsystemClass) const
	{
		return static_cast<UEditorSubsystem*>(EditorSubsystemCollection.GetSubsystemInternal(SubsystemClass.Get()));
	}

	TSharedRef<FTimerManager> GetTimerManager() { return TimerManager; }
	virtual void Tick(float DeltaSeconds, bool bIdleMode) override;

private:
	FSubsystemCollection<UEditorSubsystem> EditorSubsystemCollection;
	TSharedRef<FTimerManager> TimerManager = MakeShared<FTimerManager>();
	FWorldContext* EditorContext = nullptr;
	/** Opening a map loads every class that its actors have, so it waits until somebody asks for the world. */
	bool bOpenedStartupMap = false;

	void OpenStartupMap();
};

/** The editor, from the host's start to its end; null in a program that did not start one. */
extern UNREALED_API UEditorEngine* GEditor;
