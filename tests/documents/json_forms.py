"""The JSON that the commands print against its schemas, and these against docs/json.md."""

import json
import subprocess

import jsonschema

from markdown import code, codes


def parts(schema):
    """The schemas within a schema, with their names."""
    if "items" in schema:
        yield "items", schema["items"]
    yield from schema.get("properties", {}).items()


def properties(schema):
    """The members of all objects in a schema."""
    return set(schema.get("properties", {})).union(*(properties(part) for _, part in parts(schema)))


def loose_objects(schema, path="schema"):
    """Objects that would let unknown members pass, or that need none of theirs."""
    if "properties" in schema:
        if schema.get("additionalProperties") is not False:
            yield f"{path} admits other members"
        if "required" not in schema:
            yield f"{path} requires nothing"
    for name, part in parts(schema):
        yield from loose_objects(part, name)


def faults(document, folder, cases, scratch, environment):
    schemas = {path.name: json.loads(path.read_text()) for path in sorted(folder.glob("*.json"))}
    told = {}
    name = None
    for line, cells in document.table("Schema"):
        # Rows without a name go on with the members of the one above.
        name = code(cells[0]) or name
        told.setdefault(name, set()).update(codes(cells[1]))
        if name not in schemas:
            yield line, f"{name} does not exist"
    for name, schema in schemas.items():
        jsonschema.Draft7Validator.check_schema(schema)
        for fault in loose_objects(schema):
            yield 1, f"{name}: {fault}"
        for member in sorted(properties(schema) ^ told.get(name, set())):
            yield 1, f"{name}: member {member} is " + (
                "not told" if member in properties(schema) else "not in the schema")
    tried = set()
    for row in cases.read_text().splitlines()[1:]:
        name, form, command = row.split("\t")
        run = subprocess.run(["bash", "-c", command], cwd=scratch, env=environment,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        text = run.stdout.decode("utf-8", "replace")
        tried.add(name)
        try:
            values = [json.loads(part) for part in (text.splitlines() if form == "lines" else [text])]
            if not values:
                yield 1, f"'{command}' prints nothing"
            for value in values:
                jsonschema.validate(value, schemas[name], jsonschema.Draft7Validator)
        except (json.JSONDecodeError, jsonschema.ValidationError) as error:
            yield 1, f"'{command}' does not meet {name}: {str(error).splitlines()[0]}\n{text[:300]}"
    for name in sorted(set(schemas) ^ tried):
        yield 1, f"{name} is not tried"
