// Forward declarations of the engine containers.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainerAllocationPolicies.h"

template <typename T, typename Allocator = FDefaultAllocator> class TArray;
template <typename T> class TArrayView;
template <typename T> using TConstArrayView = TArrayView<const T>;
template <typename... Types> struct TTuple;
template <typename KeyType, typename ValueType> using TPair = TTuple<KeyType, ValueType>;
template <typename InKeyType, typename InValueType, bool bInAllowDuplicateKeys> struct TDefaultMapKeyFuncs;
template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys = false> struct TDefaultMapHashableKeyFuncs;
template <typename ElementType, bool bInAllowDuplicateKeys = false> struct DefaultKeyFuncs;
template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>, typename Allocator = FDefaultSetAllocator> class TSet;
template <typename InKeyType, typename InValueType, typename SetAllocator = FDefaultSetAllocator, typename KeyFuncs = TDefaultMapHashableKeyFuncs<InKeyType, InValueType, false>> class TMap;
class FString;
class FName;
class FText;
template <typename CharType> class TStringView;
using FStringView = TStringView<TCHAR>;
using FAnsiStringView = TStringView<ANSICHAR>;
using FUtf8StringView = TStringView<UTF8CHAR>;
using FWideStringView = TStringView<WIDECHAR>;
