// UEditorEngine: the engine while the editor runs; owns the editor world, the undo buffer and the editor subsystems.
#pragma once

#include "CoreMinimal.h"
#include "Engine/Engine.h"
#include "EditorSubsystem.h"
#include "Subsystems/SubsystemCollection.h"
#include "UObject/ObjectPtr.h"

class UTransactor;
class UWorld;

class UNREALED_API UEditorEngine : public UEngine
{
	STANDIN_CLASS_BODY(UEditorEngine, UEngine, UNREALED_API)

public:
	UEditorEngine();

	// Creates the undo buffer, an editor world context with a new world unless one exists, then the engine and editor
	// subsystems.
	void Init(IEngineLoop* InEngineLoop) override;
	// Deinitializes the editor subsystems, then what UEngine::PreExit does, and empties the undo buffer.
	void PreExit() override;
	// One editor frame: the core ticker, the editor world (and the play world), tickable objects, then garbage collection.
	void Tick(float DeltaSeconds, bool bIdleMode) override;

	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);
	FWorldContext* GetPIEWorldContext(int32 WorldPIEInstance = 0);

	template <typename TEditorSubsystemClass>
	TEditorSubsystemClass* GetEditorSubsystem() const
	{
		return EditorSubsystemCollection.GetSubsystem<TEditorSubsystemClass>(TEditorSubsystemClass::StaticClass());
	}
	UEditorSubsystem* GetEditorSubsystemBase(TSubclassOf<UEditorSubsystem> SubsystemClass) const;

	virtual UTransactor* CreateTransBuffer();
	bool CanTransact() { return Trans != nullptr; }
	// Returns the number of transactions that were active before this one (0: it is the outermost).
	int32 BeginTransaction(const TCHAR* TransactionContext, const FText& Description, UObject* PrimaryObject);
	int32 BeginTransaction(const FText& Description);
	int32 EndTransaction();
	void CancelTransaction(int32 Index);
	void ResetTransaction(const FText& Reason);
	bool UndoTransaction(bool bCanRedo = true);
	bool RedoTransaction();
	bool IsTransactionActive() const;
	// The title of the open transaction, or of the one Undo would undo.
	FText GetTransactionName() const;

	TObjectPtr<UTransactor> Trans;
	// The Play In Editor world; null unless a play session runs.
	TObjectPtr<UWorld> PlayWorld;

private:
	void TickWorlds(float DeltaSeconds);
	void CollectGarbagePeriodically();

	FSubsystemCollection<UEditorSubsystem> EditorSubsystemCollection;
	int32 TicksSinceGarbageCollection = 0;
};

// The running editor; null before it starts and after it stops.
extern UNREALED_API UEditorEngine* GEditor;
