# Prints the differences between two machine files ($before and $after), one per line. Objects that have a name are
# identified by it, because positions in a list shift when an object is added or removed.

def place($index): . as $list | $list[$index] as $item
    | if ($item | type) == "object" and ($item | has("name")) then
        ([$list[:$index][] | select(.name == $item.name)] | length) as $same
        | "[\($item.name)" + (if $same > 0 then " #\($same + 1)" else "" end) + "]"
      else $index end;

def leaves($path):
    if type == "object" then to_entries[] | .key as $key | .value | leaves($path + [$key])
    elif type == "array" then . as $list | range(length) as $i | ($list | place($i)) as $key | $list[$i]
        | leaves($path + [$key])
    else { key: ($path | map(tostring) | join(".")), value: . } end;

def table: [leaves([])] | from_entries;

# The object that a leaf belongs to, if that object has a name.
def owner: capture("^(?<owner>.*\\])\\.[^\\]]*$").owner;

def summary($leaves): . as $owner
    | [("configIndex", "speed", "direction", "lampLL") as $field
        | $leaves["\($owner).\($field)"] | select(. != null) | "\($field) \(.)"]
    | if length > 0 then " (\(join(", ")))" else "" end;

($before[0] | table) as $old | ($after[0] | table) as $new
| ($old | keys | map(owner? // empty) | unique) as $old_owners
| ($new | keys | map(owner? // empty) | unique) as $new_owners
| ([$new_owners[] | select(IN($old_owners[]) | not)]) as $added
| ([$old_owners[] | select(IN($new_owners[]) | not)]) as $removed
| [
    ($added[] | { key: ., text: "\(.): added\(summary($new))" }),
    ($removed[] | { key: ., text: "\(.): removed" }),
    ($old + $new | keys[] | . as $key
        | select($old[$key] != $new[$key])
        | select(([$key | owner? // empty] | inside($added + $removed)) | not)
        | { key: $key, text: "\($key): \($old[$key]) -> \($new[$key])" })
  ]
| sort_by(.key)[] | .text
