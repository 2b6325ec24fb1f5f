// Writes a table of a trace database as mdb-reader sees it: dump_table.mjs DATABASE [TABLE]
//
// Values end with U+001F, rows with U+001E, and Null is U+0001. Without a table: the tables' names,
// and their columns.

import { readFileSync } from "node:fs";
import MDBReader from "mdb-reader";

const [path, table] = process.argv.slice(2);
const reader = new MDBReader(readFileSync(path));
const shown = (value) => (value === null ? "\u0001" : String(value));
const parts = [];
if (table === undefined) {
    for (const name of reader.getTableNames())
        parts.push([name, ...reader.getTable(name).getColumnNames()]);
} else {
    const columns = reader.getTable(table).getColumnNames();
    for (const row of reader.getTable(table).getData())
        parts.push(columns.map((column) => shown(row[column])));
}
process.stdout.write(parts.map((row) => row.map((value) => value + "\u001f").join("") + "\u001e").join(""));
