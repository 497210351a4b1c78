-- A pcall around os.exit, even in a coroutine, does not keep the script running.
local ok = pcall(coroutine.wrap(function() pcall(os.exit, false) print("after the inner pcall") end))
print("after the outer pcall", ok)
