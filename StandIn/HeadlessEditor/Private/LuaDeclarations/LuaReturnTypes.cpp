#include "LuaReturnTypes.h"

#include "LuaSignature.h"

namespace UE::Vlmr
{
	namespace
	{
		const TCHAR* const AnyType = TEXT("any");
		const TCHAR* const TableType = TEXT("table");

		bool IsPlainType(const FString& Word)
		{
			static const TCHAR* const PlainTypes[] = { TEXT("nil"), TEXT("true"), TEXT("false"), TEXT("boolean"), TEXT("number"),
				TEXT("integer"), TEXT("string"), TEXT("table"), TEXT("function"), TEXT("any") };
			for (const TCHAR* const PlainType : PlainTypes)
			{
				if (Word.Equals(PlainType, ESearchCase::CaseSensitive))
				{
					return true;
				}
			}
			return false;
		}

		bool IsBooleanLiteral(const FString& Value)
		{
			return Value.Equals(TEXT("true"), ESearchCase::CaseSensitive) || Value.Equals(TEXT("false"), ESearchCase::CaseSensitive);
		}

		// The type a literal value shows: "false" -> "boolean", "-1" -> "number", "\"1080p\"" -> "string"; others "any".
		FString ToLiteralType(const FString& Value)
		{
			if (IsBooleanLiteral(Value))
			{
				return TEXT("boolean");
			}
			if (!Value.IsEmpty() && Value.IsNumeric())
			{
				return TEXT("number");
			}
			if (Value.Len() >= 2 && Value.StartsWith(TEXT("\"")) && Value.EndsWith(TEXT("\"")))
			{
				return TEXT("string");
			}
			return AnyType;
		}

		// "job handle" names the handle kind "job".
		bool ParseHandleKind(const FString& Word, FString& OutKind)
		{
			const FString Suffix = TEXT(" handle");
			if (!Word.EndsWith(Suffix, ESearchCase::CaseSensitive))
			{
				return false;
			}
			OutKind = Word.LeftChop(Suffix.Len());
			return IsLuaIdentifier(OutKind);
		}

		// The parts of Text between the Separators outside braces and quotes, trimmed; false when its braces or quotes do
		// not pair up. An empty text has no parts.
		bool SplitOutsideBraces(const FString& Text, const FString& Separator, TArray<FString>& OutParts)
		{
			int32 Depth = 0;
			bool bInQuotes = false;
			int32 PartStart = 0;
			for (int32 Index = 0; Index < Text.Len(); ++Index)
			{
				const TCHAR Character = Text[Index];
				if (Character == TEXT('"'))
				{
					bInQuotes = !bInQuotes;
				}
				else if (bInQuotes)
				{
					continue;
				}
				else if (Character == TEXT('{'))
				{
					++Depth;
				}
				else if (Character == TEXT('}') && --Depth < 0)
				{
					return false;
				}
				else if (Depth == 0 && Text.Mid(Index, Separator.Len()).Equals(Separator, ESearchCase::CaseSensitive))
				{
					OutParts.Add(Text.Mid(PartStart, Index - PartStart).TrimStartAndEnd());
					PartStart = Index + Separator.Len();
					Index = PartStart - 1;
				}
			}
			if (Depth != 0 || bInQuotes)
			{
				return false;
			}
			const FString LastPart = Text.Mid(PartStart).TrimStartAndEnd();
			if (!LastPart.IsEmpty() || !OutParts.IsEmpty())
			{
				OutParts.Add(LastPart);
			}
			return true;
		}

		// The entries of a table text "{a, b={c}}", or false when the text is not one table.
		bool SplitTableEntries(const FString& Text, TArray<FString>& OutEntries)
		{
			return Text.StartsWith(TEXT("{")) && Text.EndsWith(TEXT("}"))
				&& SplitOutsideBraces(Text.Mid(1, Text.Len() - 2), TEXT(","), OutEntries);
		}

		// "key=value" into its trimmed sides; an entry without "=" is all key.
		void SplitKeyAndValue(const FString& Entry, FString& OutKey, FString& OutValue)
		{
			int32 EqualsIndex = INDEX_NONE;
			const bool bHasValue = Entry.FindChar(TEXT('='), EqualsIndex);
			OutKey = bHasValue ? Entry.Left(EqualsIndex).TrimStartAndEnd() : Entry;
			OutValue = bHasValue ? Entry.Mid(EqualsIndex + 1).TrimStartAndEnd() : FString();
		}

		// "ok_false" for a table text with the entry "ok=false": the key that tells this table from the others.
		FString FindBooleanLiteralEntry(const FString& TableText)
		{
			TArray<FString> Entries;
			SplitTableEntries(TableText, Entries);
			for (const FString& Entry : Entries)
			{
				FString Key;
				FString Value;
				SplitKeyAndValue(Entry, Key, Value);
				if (IsLuaIdentifier(Key) && IsBooleanLiteral(Value))
				{
					return Key + TEXT("_") + Value;
				}
			}
			return FString();
		}

		bool HasField(const TArray<FLuaLSField>& Fields, const FString& Name)
		{
			return Fields.ContainsByPredicate([&Name](const FLuaLSField& Field) { return Field.Name == Name; });
		}

		bool IsArrayEntry(const FString& Entry)
		{
			return Entry.EndsWith(TEXT("...")) || Entry.StartsWith(TEXT("{"));
		}

		// Reads the alternatives of one returns text into its LuaLS types, adding the classes and named kinds it meets.
		class FReturnsReader
		{
		public:
			explicit FReturnsReader(FLuaLSReturn& InReturn)
				: Return(InReturn)
			{
			}

			FString ReadAlternative(const FString& Text, const FString& ResultName)
			{
				if (!Text.StartsWith(TEXT("{")))
				{
					return ReadWord(Text);
				}
				const int32 ClassCount = Return.Classes.Num();
				const int32 KindCount = Return.NamedKinds.Num();
				FString Type;
				if (ReadTable(Text, NameTopLevelClass(Text, ResultName), Type))
				{
					return Type;
				}
				Return.Classes.SetNum(ClassCount);
				Return.NamedKinds.SetNum(KindCount);
				return TableType;
			}

		private:
			FString ReadWord(const FString& Word)
			{
				if (Word.Equals(TEXT("bool"), ESearchCase::CaseSensitive))
				{
					return TEXT("boolean");
				}
				if (IsPlainType(Word))
				{
					return Word;
				}
				if (Word.EndsWith(TEXT("[]")))
				{
					const FString ElementType = ReadWord(Word.LeftChop(2));
					return ElementType == AnyType ? ElementType : ElementType + TEXT("[]");
				}
				FString Kind = Word;
				if (!ParseHandleKind(Word, Kind) && !IsLuaIdentifier(Kind))
				{
					return AnyType;
				}
				Return.NamedKinds.AddUnique(Kind);
				return ToLuaLSClassName(Kind);
			}

			bool ReadTable(const FString& Text, const FString& ClassName, FString& OutType)
			{
				TArray<FString> Entries;
				if (!SplitTableEntries(Text, Entries))
				{
					return false;
				}
				if (Entries.IsEmpty())
				{
					OutType = TableType;
					return true;
				}
				if (Entries.Num() == 1 && IsArrayEntry(Entries[0]))
				{
					return ReadArray(Entries[0], ClassName, OutType);
				}
				return ReadClass(Entries, ClassName, OutType);
			}

			// "string..." or "{profile, width}": the one entry of an array's table text.
			bool ReadArray(const FString& Entry, const FString& ClassName, FString& OutType)
			{
				const FString Element = Entry.EndsWith(TEXT("...")) ? Entry.LeftChop(3).TrimStartAndEnd() : Entry;
				FString ElementType;
				if (Element.StartsWith(TEXT("{")))
				{
					if (!ReadTable(Element, ClassName, ElementType))
					{
						return false;
					}
				}
				else
				{
					ElementType = ReadWord(Element);
				}
				OutType = ElementType + TEXT("[]");
				return true;
			}

			bool ReadClass(const TArray<FString>& Entries, const FString& ClassName, FString& OutType)
			{
				const int32 ClassIndex = Return.Classes.Num();
				const FString Name = MakeUniqueClassName(ClassName);
				Return.Classes.AddDefaulted_GetRef().Name = Name;
				TArray<FLuaLSField> Fields;
				for (const FString& Entry : Entries)
				{
					FLuaLSField Field;
					if (!ReadField(Entry, Name, Field) || HasField(Fields, Field.Name))
					{
						return false;
					}
					Fields.Add(MoveTemp(Field));
				}
				Return.Classes[ClassIndex].Fields = MoveTemp(Fields);
				OutType = Name;
				return true;
			}

			// "key", "key?", "key=false" or "key={...}".
			bool ReadField(const FString& Entry, const FString& ClassName, FLuaLSField& OutField)
			{
				FString Key;
				FString Value;
				SplitKeyAndValue(Entry, Key, Value);
				OutField.bOptional = Key.EndsWith(TEXT("?"));
				OutField.Name = OutField.bOptional ? Key.LeftChop(1) : Key;
				if (!IsLuaIdentifier(OutField.Name))
				{
					return false;
				}
				if (Value.StartsWith(TEXT("{")))
				{
					return ReadTable(Value, ClassName + TEXT("_") + OutField.Name, OutField.Type);
				}
				OutField.Type = ToLiteralType(Value);
				return true;
			}

			FString NameTopLevelClass(const FString& TableText, const FString& ResultName) const
			{
				const FString LiteralEntry = FindBooleanLiteralEntry(TableText);
				return ToLuaLSClassName(ResultName + TEXT("_") + (LiteralEntry.IsEmpty() ? FString(TEXT("result")) : LiteralEntry));
			}

			FString MakeUniqueClassName(const FString& Candidate) const
			{
				FString Name = Candidate;
				for (int32 Suffix = 2; HasClass(Name); ++Suffix)
				{
					Name = Candidate + FString::FromInt(Suffix);
				}
				return Name;
			}

			bool HasClass(const FString& Name) const
			{
				return Return.Classes.ContainsByPredicate([&Name](const FLuaLSClass& Class) { return Class.Name == Name; });
			}

			FLuaLSReturn& Return;
		};
	}

	FLuaLSReturn ToLuaLSReturn(const FString& Returns, const FString& ResultName)
	{
		FLuaLSReturn Return;
		TArray<FString> Alternatives;
		if (!SplitOutsideBraces(Returns, TEXT(" or "), Alternatives))
		{
			Alternatives = { Returns.TrimStartAndEnd() };
		}
		FReturnsReader Reader(Return);
		TArray<FString> Types;
		for (const FString& Alternative : Alternatives)
		{
			Types.AddUnique(Reader.ReadAlternative(Alternative, ResultName));
		}
		if (Types.IsEmpty() || Types.Contains(AnyType))
		{
			// "any" takes in every other alternative: no class is left to refer to.
			Return.Type = AnyType;
			Return.Classes.Reset();
		}
		else
		{
			Return.Type = FString::Join(Types, TEXT("|"));
		}
		return Return;
	}

	FString ToLuaLSClassName(const FString& Kind)
	{
		return TEXT("vlmr.") + Kind;
	}
}
