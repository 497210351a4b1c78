#include "CoreMinimal.h"
#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "Editor/TransBuffer.h"
#include "ScopedTransaction.h"
#include "UObject/GarbageCollection.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

class UTransactionTestObject : public UObject
{
	STANDIN_CLASS_BODY(UTransactionTestObject, UObject, )

public:
	void PostEditUndo() override
	{
		Super::PostEditUndo();
		++PostEditUndoCalls;
	}

	int32 Value = 0;
	FString Label = TEXT("Initial");
	TArray<int32> Numbers;
	TObjectPtr<UObject> Reference;
	int32 TransientValue = 0;
	int32 NonTransactionalValue = 0;
	int32 PostEditUndoCalls = 0;
};

STANDIN_IMPLEMENT_CLASS(UTransactionTestObject, CLASS_None, "VlmrUnitTests")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
	STANDIN_PROPERTY(Label, CPF_Edit);
	STANDIN_PROPERTY(Numbers, CPF_Edit);
	STANDIN_PROPERTY(Reference, CPF_Edit);
	STANDIN_PROPERTY(TransientValue, CPF_Edit | CPF_Transient);
	STANDIN_PROPERTY(NonTransactionalValue, CPF_Edit | CPF_NonTransactional);
}

class FTransactionTest : public ::testing::Test
{
protected:
	void SetUp() override
	{
		UE::UnrealEd::StandIn::StartEditor(TEXT("/Temp/TransactionTestMap"));
	}

	void TearDown() override
	{
		Objects.Empty();
		UE::UnrealEd::StandIn::StopEditor();
	}

	UTransactionTestObject* NewTestObject(EObjectFlags Flags = RF_Transactional)
	{
		UTransactionTestObject* Object = NewObject<UTransactionTestObject>(GetTransientPackage(), NAME_None, Flags);
		Objects.Emplace(Object);
		return Object;
	}

	static FText Title(const TCHAR* Text)
	{
		return FText::FromString(Text);
	}

	static UTransactor& Trans()
	{
		return *GEditor->Trans;
	}

private:
	TArray<TStrongObjectPtr<UTransactionTestObject>> Objects;
};

TEST_F(FTransactionTest, UndoAndRedoRestoreEveryRecordedPropertyAndCallPostEditUndo)
{
	UTransactionTestObject* Object = NewTestObject();
	Object->Numbers = { 4 };
	{
		FScopedTransaction Transaction(Title(TEXT("Change values")));
		EXPECT_TRUE(Transaction.IsOutstanding());
		EXPECT_TRUE(GEditor->IsTransactionActive());
		EXPECT_TRUE(Object->Modify());
		Object->Value = 5;
		Object->Label = TEXT("Changed");
		Object->Numbers = { 1, 2, 3 };
	}
	EXPECT_FALSE(GEditor->IsTransactionActive());
	EXPECT_EQ(Trans().GetQueueLength(), 1);
	EXPECT_EQ(Trans().GetTransaction(0)->GetTitle().ToString(), TEXT("Change values"));

	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Object->Value, 0);
	EXPECT_EQ(Object->Label, TEXT("Initial"));
	EXPECT_EQ(Object->Numbers, TArray<int32>({ 4 }));
	EXPECT_EQ(Object->PostEditUndoCalls, 1);
	EXPECT_EQ(Trans().GetUndoCount(), 1);
	EXPECT_FALSE(GEditor->UndoTransaction());

	ASSERT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Object->Value, 5);
	EXPECT_EQ(Object->Label, TEXT("Changed"));
	EXPECT_EQ(Object->Numbers, TArray<int32>({ 1, 2, 3 }));
	EXPECT_EQ(Object->PostEditUndoCalls, 2);
	EXPECT_FALSE(GEditor->RedoTransaction());

	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Object->Value, 0);
}

TEST_F(FTransactionTest, NestedScopesMakeOneEntryTitledByTheOutermost)
{
	UTransactionTestObject* First = NewTestObject();
	UTransactionTestObject* Second = NewTestObject();
	{
		FScopedTransaction Outer(Title(TEXT("Outer")));
		First->Modify();
		First->Value = 1;
		{
			FScopedTransaction Inner(Title(TEXT("Inner")));
			EXPECT_TRUE(Inner.IsOutstanding());
			Second->Modify();
			Second->Value = 2;
		}
		EXPECT_TRUE(GEditor->IsTransactionActive());
	}
	ASSERT_EQ(Trans().GetQueueLength(), 1);
	EXPECT_EQ(Trans().GetTransaction(0)->GetTitle().ToString(), TEXT("Outer"));
	EXPECT_EQ(Trans().GetTransaction(0)->GetRecordCount(), 2);

	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(First->Value, 0);
	EXPECT_EQ(Second->Value, 0);
	EXPECT_EQ(Trans().GetUndoCount(), 1);
}

TEST_F(FTransactionTest, BeginAndEndReportTheNestingDepth)
{
	EXPECT_EQ(GEditor->BeginTransaction(Title(TEXT("Outer"))), 0);
	EXPECT_EQ(GEditor->BeginTransaction(Title(TEXT("Inner"))), 1);
	EXPECT_EQ(GEditor->EndTransaction(), 2);
	EXPECT_EQ(GEditor->EndTransaction(), 1);
	EXPECT_EQ(GEditor->EndTransaction(), 0);
	EXPECT_FALSE(GEditor->IsTransactionActive());
}

TEST_F(FTransactionTest, SecondModifyInOneTransactionKeepsTheFirstState)
{
	UTransactionTestObject* Object = NewTestObject();
	Object->Value = 10;
	{
		FScopedTransaction Transaction(Title(TEXT("Twice")));
		Object->Modify();
		Object->Value = 11;
		Object->Modify();
		Object->Value = 12;
	}
	EXPECT_EQ(Trans().GetTransaction(0)->GetRecordCount(), 1);
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Object->Value, 10);
	ASSERT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Object->Value, 12);
}

TEST_F(FTransactionTest, CancelDropsTheEntryWithoutRollingBack)
{
	UTransactionTestObject* Object = NewTestObject();
	{
		FScopedTransaction Transaction(Title(TEXT("Cancelled")));
		Object->Modify();
		Object->Value = 7;
		Transaction.Cancel();
		EXPECT_FALSE(Transaction.IsOutstanding());
		EXPECT_FALSE(GEditor->IsTransactionActive());
		Transaction.Cancel();
		EXPECT_FALSE(Transaction.IsOutstanding());
	}
	EXPECT_EQ(Object->Value, 7);
	EXPECT_EQ(Trans().GetQueueLength(), 0);
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_EQ(Object->Value, 7);
}

TEST_F(FTransactionTest, CancellingANestedTransactionDropsOnlyItsOwnRecords)
{
	UTransactionTestObject* OuterObject = NewTestObject();
	UTransactionTestObject* InnerObject = NewTestObject();
	{
		FScopedTransaction Outer(Title(TEXT("Outer")));
		OuterObject->Modify();
		OuterObject->Value = 1;
		{
			FScopedTransaction Inner(Title(TEXT("Inner")));
			InnerObject->Modify();
			InnerObject->Value = 2;
			Inner.Cancel();
		}
		EXPECT_TRUE(GEditor->IsTransactionActive());
	}
	ASSERT_EQ(Trans().GetQueueLength(), 1);
	EXPECT_EQ(Trans().GetTransaction(0)->GetRecordCount(), 1);
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(OuterObject->Value, 0);
	EXPECT_EQ(InnerObject->Value, 2);
}

TEST_F(FTransactionTest, NewTransactionClearsTheRedoSideUnlessItRecordsNothing)
{
	UTransactionTestObject* Object = NewTestObject();
	{
		FScopedTransaction Transaction(Title(TEXT("First")));
		Object->Modify();
		Object->Value = 1;
	}
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(Trans().CanRedo());

	{
		FScopedTransaction Empty(Title(TEXT("Records nothing")));
	}
	EXPECT_TRUE(Trans().CanRedo());
	EXPECT_EQ(Trans().GetQueueLength(), 1);
	EXPECT_EQ(Trans().GetRedoContext().Title.ToString(), TEXT("First"));

	{
		FScopedTransaction Transaction(Title(TEXT("Second")));
		Object->Modify();
		Object->Value = 2;
	}
	EXPECT_FALSE(Trans().CanRedo());
	EXPECT_FALSE(GEditor->RedoTransaction());
	ASSERT_EQ(Trans().GetQueueLength(), 1);
	EXPECT_EQ(Trans().GetUndoCount(), 0);
	EXPECT_EQ(Trans().GetTransaction(0)->GetTitle().ToString(), TEXT("Second"));
	EXPECT_EQ(Object->Value, 2);
}

TEST_F(FTransactionTest, UndoWithoutRedoForgetsTheUndoneEntry)
{
	UTransactionTestObject* Object = NewTestObject();
	{
		FScopedTransaction Transaction(Title(TEXT("Gone")));
		Object->Modify();
		Object->Value = 3;
	}
	ASSERT_TRUE(GEditor->UndoTransaction(false));
	EXPECT_EQ(Object->Value, 0);
	EXPECT_EQ(Trans().GetQueueLength(), 0);
	EXPECT_FALSE(GEditor->RedoTransaction());
}

TEST_F(FTransactionTest, TransientAndNonTransactionalPropertiesAreNotRestored)
{
	UTransactionTestObject* Object = NewTestObject();
	{
		FScopedTransaction Transaction(Title(TEXT("Mixed")));
		Object->Modify();
		Object->Value = 1;
		Object->TransientValue = 2;
		Object->NonTransactionalValue = 3;
	}
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Object->Value, 0);
	EXPECT_EQ(Object->TransientValue, 2);
	EXPECT_EQ(Object->NonTransactionalValue, 3);
}

TEST_F(FTransactionTest, OnlyTransactionalObjectsAreRecorded)
{
	UTransactionTestObject* Plain = NewTestObject(RF_NoFlags);
	{
		FScopedTransaction Transaction(Title(TEXT("Plain")));
		EXPECT_FALSE(Plain->Modify());
		Plain->Value = 9;
	}
	EXPECT_EQ(Trans().GetQueueLength(), 0);
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_EQ(Plain->Value, 9);
}

TEST_F(FTransactionTest, ScopeThatShouldNotTransactRecordsNothing)
{
	UTransactionTestObject* Object = NewTestObject();
	{
		FScopedTransaction Transaction(Title(TEXT("Not really")), false);
		EXPECT_FALSE(Transaction.IsOutstanding());
		EXPECT_FALSE(GEditor->IsTransactionActive());
		EXPECT_FALSE(Object->Modify());
		Object->Value = 4;
	}
	EXPECT_EQ(Trans().GetQueueLength(), 0);
}

TEST_F(FTransactionTest, ContextAndPrimaryObjectAreReported)
{
	UTransactionTestObject* Primary = NewTestObject();
	{
		FScopedTransaction Transaction(TEXT("TestContext"), Title(TEXT("With primary")), Primary);
		Primary->Modify();
		Primary->Value = 1;
		EXPECT_EQ(GEditor->GetTransactionName().ToString(), TEXT("With primary"));
		EXPECT_FALSE(GEditor->UndoTransaction());
	}
	const FTransactionContext Context = Trans().GetUndoContext();
	EXPECT_EQ(Context.Title.ToString(), TEXT("With primary"));
	EXPECT_EQ(Context.Context, TEXT("TestContext"));
	EXPECT_EQ(Context.PrimaryObject, Primary);
	EXPECT_TRUE(Context.TransactionId.IsValid());
	EXPECT_TRUE(Trans().IsObjectInTransactionBuffer(Primary));
}

TEST_F(FTransactionTest, ObjectsReferencedOnlyByTheUndoBufferSurviveGarbageCollection)
{
	UTransactionTestObject* Holder = NewTestObject();
	TWeakObjectPtr<UTransactionTestObject> Referenced = NewObject<UTransactionTestObject>(GetTransientPackage());
	TWeakObjectPtr<UTransactionTestObject> RecordedOnly = NewObject<UTransactionTestObject>(GetTransientPackage(), NAME_None, RF_Transactional);
	Holder->Reference = Referenced.Get();
	{
		FScopedTransaction Transaction(Title(TEXT("Drop reference")));
		Holder->Modify();
		Holder->Reference = nullptr;
		RecordedOnly->Modify();
		RecordedOnly->Value = 8;
	}

	CollectGarbage(RF_NoFlags);
	ASSERT_TRUE(Referenced.IsValid());
	ASSERT_TRUE(RecordedOnly.IsValid());

	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Holder->Reference, Referenced.Get());
	EXPECT_EQ(RecordedOnly->Value, 0);

	Holder->Reference = nullptr;
	GEditor->ResetTransaction(Title(TEXT("Test reset")));
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Referenced.IsValid());
	EXPECT_FALSE(RecordedOnly.IsValid());
}

TEST_F(FTransactionTest, UndoSkipsObjectsDestroyedSinceTheyWereRecorded)
{
	UTransactionTestObject* Survivor = NewTestObject();
	TWeakObjectPtr<UTransactionTestObject> Doomed = NewObject<UTransactionTestObject>(GetTransientPackage(), NAME_None, RF_Transactional);
	Survivor->Reference = Doomed.Get();
	{
		FScopedTransaction Transaction(Title(TEXT("Both")));
		Survivor->Modify();
		Survivor->Value = 1;
		Doomed->Modify();
		Doomed->Value = 2;
	}
	Doomed->MarkAsGarbage();
	CollectGarbage(RF_NoFlags);
	ASSERT_FALSE(Doomed.IsValid());

	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Survivor->Value, 0);
	EXPECT_EQ(Survivor->Reference, nullptr);
	EXPECT_EQ(Survivor->PostEditUndoCalls, 1);
	ASSERT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Survivor->Value, 1);
}
