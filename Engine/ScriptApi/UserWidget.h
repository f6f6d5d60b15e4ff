// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "UserWidget.generated.h"

DECLARE_DYNAMIC_DELEGATE(FOnInputAction);
DECLARE_DYNAMIC_DELEGATE(FWidgetAnimationDynamicEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnVisibilityChangedEvent, ESlateVisibility, InVisibility);

/** A widget of a project. */
UCLASS(Abstract, editinlinenew, BlueprintType, Blueprintable, meta = (DontUseGenericSpawnObject = "True", DisableNativeTick))
class UMG_API UUserWidget : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor ColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ForegroundColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin Padding;

	UPROPERTY(BlueprintAssignable, Category = "Appearance|Event")
	FOnVisibilityChangedEvent OnVisibilityChanged;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Input")
	int32 Priority = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction")
	uint8 bIsFocusable : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Input")
	uint8 bStopAction : 1;

	/** Shows the widget on the whole screen. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	void AddToViewport(int32 ZOrder = 0);

	/** Shows the widget on its player's screen. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	bool AddToPlayerScreen(int32 ZOrder = 0);

	/** Takes the widget off the screen. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport", meta = (DeprecatedFunction))
	void RemoveFromViewport();

	/** Sets the position in viewport. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	void SetPositionInViewport(FVector2D Position, bool bRemoveDPIScale = true);

	/** Sets the desired size in viewport. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	void SetDesiredSizeInViewport(FVector2D Size);

	/** Sets the anchors in viewport. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	void SetAnchorsInViewport(FAnchors Anchors);

	/** Sets the alignment in viewport. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	void SetAlignmentInViewport(FVector2D Alignment);

	/** The anchors in viewport. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	FAnchors GetAnchorsInViewport() const;

	/** The alignment in viewport. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	FVector2D GetAlignmentInViewport() const;

	/** The is visible. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	bool GetIsVisible() const;

	/** True if the widget is on the screen. */
	UFUNCTION(BlueprintPure, Category = "Appearance")
	bool IsInViewport() const;

	/** The owning player pawn. */
	UFUNCTION(BlueprintCallable, Category = "Player")
	APawn* GetOwningPlayerPawn() const;

	/** The owning player camera manager. */
	UFUNCTION(BlueprintCallable, Category = "Player")
	APlayerCameraManager* GetOwningPlayerCameraManager() const;

	/** Sets the owning player. */
	UFUNCTION(BlueprintCallable, Category = "Player")
	void SetOwningPlayer(APlayerController* LocalPlayerController);

	/** Sets the color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetColorAndOpacity(FLinearColor InColorAndOpacity);

	/** Sets the foreground color. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetForegroundColor(FSlateColor InForegroundColor);

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetPadding(FMargin InPadding);

	/** The widget is about to be shown, in the game or the editor. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void PreConstruct(bool IsDesignTime);

	/** The widget is shown. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface", meta = (Keywords = "Begin Play"))
	void Construct();

	/** The widget is shown no more. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface", meta = (Keywords = "End Play, Destroy"))
	void Destruct();

	/** The widget is made. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void OnInitialized();

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void Tick(FGeometry MyGeometry, float InDeltaTime);

	/** Paints over the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Painting")
	void OnPaint(FPaintContext& Context) const;

	/** Focus comes. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Keyboard")
	FEventReply OnFocusReceived(FGeometry MyGeometry, FFocusEvent InFocusEvent);

	/** Focus goes. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Keyboard")
	void OnFocusLost(FFocusEvent InFocusEvent);

	/** A character is typed. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Input")
	FEventReply OnKeyChar(FGeometry MyGeometry, FCharacterEvent InCharacterEvent);

	/** A key is pressed, before the widgets within hear of it. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Input")
	FEventReply OnPreviewKeyDown(FGeometry MyGeometry, FKeyEvent InKeyEvent);

	/** A key is pressed. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Input")
	FEventReply OnKeyDown(FGeometry MyGeometry, FKeyEvent InKeyEvent);

	/** A key is let go. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Input")
	FEventReply OnKeyUp(FGeometry MyGeometry, FKeyEvent InKeyEvent);

	/** An axis moves. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Input")
	FEventReply OnAnalogValueChanged(FGeometry MyGeometry, FAnalogInputEvent InAnalogInputEvent);

	/** A button is pressed. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseButtonDown(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** A button is pressed, before the widgets within hear of it. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnPreviewMouseButtonDown(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** A button is let go. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseButtonUp(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** The pointer moves. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseMove(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** The pointer comes over the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	void OnMouseEnter(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** The pointer leaves the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	void OnMouseLeave(const FPointerEvent& MouseEvent);

	/** The wheel turns. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseWheel(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** A double click. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseButtonDoubleClick(FGeometry InMyGeometry, const FPointerEvent& InMouseEvent);

	/** The pointer is the widget's no more. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	void OnMouseCaptureLost();

	/** A drag begins. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Drag and Drop")
	void OnDragDetected(FGeometry MyGeometry, const FPointerEvent& PointerEvent, UDragDropOperation*& Operation);

	/** A drag ends nowhere. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Drag and Drop")
	void OnDragCancelled(const FPointerEvent& PointerEvent, UDragDropOperation* Operation);

	/** A drag comes over the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Drag and Drop")
	void OnDragEnter(FGeometry MyGeometry, FPointerEvent PointerEvent, UDragDropOperation* Operation);

	/** A drag leaves the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Drag and Drop")
	void OnDragLeave(FPointerEvent PointerEvent, UDragDropOperation* Operation);

	/** A drag moves over the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Drag and Drop")
	bool OnDragOver(FGeometry MyGeometry, FPointerEvent PointerEvent, UDragDropOperation* Operation);

	/** A drag ends on the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Drag and Drop")
	bool OnDrop(FGeometry MyGeometry, FPointerEvent PointerEvent, UDragDropOperation* Operation);

	/** A gesture is made. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Touch Input")
	FEventReply OnTouchGesture(FGeometry MyGeometry, const FPointerEvent& GestureEvent);

	/** A finger touches the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Touch Input")
	FEventReply OnTouchStarted(FGeometry MyGeometry, const FPointerEvent& InTouchEvent);

	/** A finger moves. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Touch Input")
	FEventReply OnTouchMoved(FGeometry MyGeometry, const FPointerEvent& InTouchEvent);

	/** A finger leaves the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Touch Input")
	FEventReply OnTouchEnded(FGeometry MyGeometry, const FPointerEvent& InTouchEvent);

	/** The device is moved. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Touch Input")
	FEventReply OnMotionDetected(FGeometry MyGeometry, FMotionEvent InMotionEvent);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void BindToAnimationStarted(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void UnbindFromAnimationStarted(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void UnbindAllFromAnimationStarted(UWidgetAnimation* Animation);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void BindToAnimationFinished(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void UnbindFromAnimationFinished(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void UnbindAllFromAnimationFinished(UWidgetAnimation* Animation);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void BindToAnimationEvent(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate, EWidgetAnimationEvent AnimationEvent,
		FName UserTag = NAME_None);

	/** An animation begins. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Animation")
	void OnAnimationStarted(const UWidgetAnimation* Animation);

	/** An animation ends. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Animation")
	void OnAnimationFinished(const UWidgetAnimation* Animation);

	/** Plays an animation. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	UUMGSequencePlayer* PlayAnimation(UWidgetAnimation* InAnimation, float StartAtTime = 0.0f, int32 NumLoopsToPlay = 1,
		EUMGSequencePlayMode::Type PlayMode = EUMGSequencePlayMode::Forward, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/** Plays a part of an animation. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	UUMGSequencePlayer* PlayAnimationTimeRange(UWidgetAnimation* InAnimation, float StartAtTime = 0.0f, float EndAtTime = 0.0f,
		int32 NumLoopsToPlay = 1, EUMGSequencePlayMode::Type PlayMode = EUMGSequencePlayMode::Forward, float PlaybackSpeed = 1.0f,
		bool bRestoreState = false);

	/** Plays an animation forward from where it is. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	UUMGSequencePlayer* PlayAnimationForward(UWidgetAnimation* InAnimation, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/** Plays an animation backward from where it is. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	UUMGSequencePlayer* PlayAnimationReverse(UWidgetAnimation* InAnimation, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/** Ends an animation. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void StopAnimation(const UWidgetAnimation* InAnimation);

	/** Ends all animations. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void StopAllAnimations();

	/** Stops an animation until it goes on. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	float PauseAnimation(const UWidgetAnimation* InAnimation);

	/** The animation current time. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	float GetAnimationCurrentTime(const UWidgetAnimation* InAnimation) const;

	/** Sets the animation current time. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void SetAnimationCurrentTime(const UWidgetAnimation* InAnimation, float InTime);

	/** True if it is animation playing. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Animation")
	bool IsAnimationPlaying(const UWidgetAnimation* InAnimation) const;

	/** True if it is any animation playing. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Animation")
	bool IsAnyAnimationPlaying() const;

	/** Sets the num loops to play. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void SetNumLoopsToPlay(const UWidgetAnimation* InAnimation, int32 NumLoopsToPlay);

	/** Sets the playback speed. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void SetPlaybackSpeed(const UWidgetAnimation* InAnimation, float PlaybackSpeed = 1.0f);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void ReverseAnimation(const UWidgetAnimation* InAnimation);

	/** True if it is animation playing forward. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Animation")
	bool IsAnimationPlayingForward(const UWidgetAnimation* InAnimation);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Animation")
	void FlushAnimations();

	UFUNCTION(BlueprintCallable, Category = "Sound", meta = (DeprecatedFunction))
	void PlaySound(USoundBase* SoundToPlay);

	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void RegisterInputComponent();

	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void UnregisterInputComponent();

	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void ListenForInputAction(FName ActionName, TEnumAsByte<EInputEvent> EventType, bool bConsume, FOnInputAction Callback);

	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void StopListeningForInputAction(FName ActionName, TEnumAsByte<EInputEvent> EventType);

	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void StopListeningForAllInputActions();

	/** Sets the input action priority. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void SetInputActionPriority(int32 NewPriority);

	/** Sets the input action blocking. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintProtected = "true"))
	void SetInputActionBlocking(bool bShouldBlock);

	/** True if it is listening for input action. */
	UFUNCTION(BlueprintPure, Category = "Input", meta = (BlueprintProtected = "true"))
	bool IsListeningForInputAction(FName ActionName) const;
};
