-- expect-error: ^error: .*raises_error\.lua:5: scenario failure on purpose$
-- expect-output: ^help: no Lua binding named 'NoSuchBinding'$
-- A Lua error ends `vlmr run` with exit code 1 and "error: <message>" on stderr; lines logged before it are printed.
help("NoSuchBinding")
error("scenario failure on purpose")
help("NeverReached")
