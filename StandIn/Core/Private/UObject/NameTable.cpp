#include "UObject/NameTable.h"

#include "UObject/UnrealNames.h"

#include <atomic>
#include <mutex>

namespace UE::Core::Private
{
	namespace
	{
		constexpr int32 EntriesPerBlock = 4096;
		constexpr int32 MaxBlocks = 4096;

		uint32 HashIgnoringCase(FStringView Name)
		{
			return GetTypeHash(Name);
		}

		/**
		 * Entries live in fixed blocks that never move, so a name's string can be read without the lock;
		 * the hash index (buckets of entry indices) is only touched under the lock.
		 */
		class FNameTable
		{
		public:
			FNameTable()
			{
				Buckets.Init(INDEX_NONE, 1024);
#define UE_STANDIN_REGISTER_NAME(Name) AddEntry(FStringView(TEXT(#Name)));
				UE_STANDIN_HARDCODED_NAMES(UE_STANDIN_REGISTER_NAME)
#undef UE_STANDIN_REGISTER_NAME
			}

			int32 FindOrAdd(FStringView Name, bool bFindOnly)
			{
				std::lock_guard<std::mutex> Lock(Mutex);
				const int32 Existing = FindLocked(Name);
				if (Existing != INDEX_NONE || bFindOnly)
				{
					return Existing;
				}
				return AddEntry(Name);
			}

			const FString& GetString(int32 Index) const
			{
				const FEntry* Block = Blocks[Index / EntriesPerBlock].load(std::memory_order_acquire);
				return Block[Index % EntriesPerBlock].String;
			}

			bool IsValidIndex(int32 Index) const
			{
				return Index >= 0 && Index < NumEntries.load(std::memory_order_acquire);
			}

		private:
			struct FEntry
			{
				FString String;
				uint32 Hash = 0;
				int32 NextInBucket = INDEX_NONE;
			};

			int32 FindLocked(FStringView Name) const
			{
				const uint32 Hash = HashIgnoringCase(Name);
				for (int32 Index = Buckets[(int32)(Hash & (uint32)(Buckets.Num() - 1))]; Index != INDEX_NONE; Index = EntryAt(Index).NextInBucket)
				{
					const FEntry& Entry = EntryAt(Index);
					if (Entry.Hash == Hash && FStringView(Entry.String).Equals(Name, ESearchCase::IgnoreCase))
					{
						return Index;
					}
				}
				return INDEX_NONE;
			}

			int32 AddEntry(FStringView Name)
			{
				const int32 Index = NumEntries.load(std::memory_order_relaxed);
				checkf(Index < EntriesPerBlock * MaxBlocks, TEXT("The name table is full"));
				const int32 BlockIndex = Index / EntriesPerBlock;
				if (!Blocks[BlockIndex].load(std::memory_order_relaxed))
				{
					Blocks[BlockIndex].store(new FEntry[EntriesPerBlock], std::memory_order_release);
				}
				FEntry& Entry = EntryAt(Index);
				Entry.String = FString(Name);
				Entry.Hash = HashIgnoringCase(Name);
				NumEntries.store(Index + 1, std::memory_order_release);
				if (NumEntries.load(std::memory_order_relaxed) > Buckets.Num())
				{
					Rehash(Buckets.Num() * 2);
				}
				else
				{
					LinkEntry(Index);
				}
				return Index;
			}

			void LinkEntry(int32 Index)
			{
				FEntry& Entry = EntryAt(Index);
				int32& Head = Buckets[(int32)(Entry.Hash & (uint32)(Buckets.Num() - 1))];
				Entry.NextInBucket = Head;
				Head = Index;
			}

			void Rehash(int32 NumBuckets)
			{
				Buckets.Init(INDEX_NONE, NumBuckets);
				const int32 Count = NumEntries.load(std::memory_order_relaxed);
				for (int32 Index = Count - 1; Index >= 0; --Index)
				{
					LinkEntry(Index);
				}
			}

			FEntry& EntryAt(int32 Index) const
			{
				return Blocks[Index / EntriesPerBlock].load(std::memory_order_relaxed)[Index % EntriesPerBlock];
			}

			std::mutex Mutex;
			std::atomic<FEntry*> Blocks[MaxBlocks] = {};
			std::atomic<int32> NumEntries{0};
			TArray<int32> Buckets;
		};

		// Stand-in choice: the table lives for the whole process (as the engine's), so it is never destroyed.
		FNameTable& GetNameTable()
		{
			static FNameTable* Table = new FNameTable();
			return *Table;
		}
	}

	int32 FindOrAddName(FStringView Name, bool bFindOnly)
	{
		return GetNameTable().FindOrAdd(Name, bFindOnly);
	}

	const FString& GetNameString(int32 Index)
	{
		return GetNameTable().GetString(Index);
	}

	bool IsValidNameIndex(int32 Index)
	{
		return GetNameTable().IsValidIndex(Index);
	}
}
