-- expect-error: ^error: 1 of 2 checks failed$
-- expect-output: ^FAIL fails on purpose: expected "b", got "a"
-- check.summary() turns a failed check into a Lua error, so the scenario's run exits 1.
check.eq(1, 1, "passes")
check.eq("a", "b", "fails on purpose")
check.summary()
