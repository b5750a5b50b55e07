object A: TA
 a=(1 'x' nil (a.b Null) <> {00} [q])
 b=()
end