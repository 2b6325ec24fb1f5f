-- The server's side of the directory database: what the views show and what the procedures do.
--
-- A stored procedure is a view of its name. Its columns are the parameters, without "@", and one
-- row inserted into it is one call; a parameter that was not assigned is NULL. A call that is
-- refused raises an error, changes nothing, and stays in the audit table all the same: FAIL, and
-- not ABORT, keeps what the trigger wrote before.
--
-- One file and no shared memory beside it: a site can be copied or archived as it lies there, a
-- killed program leaves at most a journal that the next opening rolls back, and writers of two
-- programs take turns. WAL would leave commits in a second file that a copy forgets.
PRAGMA journal_mode = DELETE;
PRAGMA synchronous = FULL;

BEGIN;

-- Type is 1 (no value), 3 (integer), 4 (floating point), 7 (date), 8 (string), 11 (boolean) or
-- 88 (GUID). A date is text, YYYY-MM-DD HH:MM:SS, local time.
CREATE TABLE tbl_ConfigurationValue (
    FullName TEXT NOT NULL COLLATE NOCASE PRIMARY KEY,
    Value,
    Type INTEGER NOT NULL CHECK (Type IN (1, 3, 4, 7, 8, 11, 88))
) WITHOUT ROWID;

-- Flags are words of 32 bits, signed; bit n is trace level n.
CREATE TABLE tbl_LoggerDiagnosticGrid (
    ObjectId TEXT NOT NULL COLLATE NOCASE PRIMARY KEY,
    Name TEXT NOT NULL COLLATE NOCASE UNIQUE,
    Flags INTEGER NOT NULL CHECK (Flags BETWEEN -2147483648 AND 2147483647),
    DefaultFlags INTEGER NOT NULL CHECK (DefaultFlags BETWEEN -2147483648 AND 2147483647)
) WITHOUT ROWID;

-- Every call of a procedure, oldest first; Value is the value or the flag word that came with it.
CREATE TABLE tbl_ProcedureAudit (
    Id INTEGER PRIMARY KEY AUTOINCREMENT,
    CalledAt TEXT NOT NULL DEFAULT (strftime('%Y-%m-%d %H:%M:%f', 'now')), -- universal time
    ProcedureName TEXT NOT NULL,
    AuditAlias TEXT,
    AuditComponent TEXT,
    Name TEXT,
    ObjectId TEXT,
    Value
);

CREATE VIEW vw_ConfigurationValue (FullName, Value, Type) AS
    SELECT FullName, Value, Type FROM tbl_ConfigurationValue;

CREATE VIEW vw_LoggerDiagnosticGrid (Name, ObjectId, Flags, DefaultFlags) AS
    SELECT Name, ObjectId, Flags, DefaultFlags FROM tbl_LoggerDiagnosticGrid;

CREATE VIEW csp_ConfigurationModify (AuditAlias, AuditComponent, FullName, ValueLong, ValueFloat,
                                     ValueDate, ValueString, ValueBool, ValueGuid) AS
    SELECT NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL WHERE 0;

-- Sets a value, whose type becomes that of the one value parameter assigned; without one the call
-- is only noted. Numbers may come as text, with blanks around them.
CREATE TRIGGER csp_ConfigurationModify_execute INSTEAD OF INSERT ON csp_ConfigurationModify
BEGIN
    INSERT INTO tbl_ProcedureAudit (ProcedureName, AuditAlias, AuditComponent, Name, Value)
    VALUES ('csp_ConfigurationModify', NEW.AuditAlias, NEW.AuditComponent, NEW.FullName,
            COALESCE(NEW.ValueLong, NEW.ValueFloat, NEW.ValueDate, NEW.ValueString, NEW.ValueBool,
                     NEW.ValueGuid));

    SELECT RAISE(FAIL, 'No configuration value has this full name.')
    WHERE NOT EXISTS (SELECT 1 FROM tbl_ConfigurationValue WHERE FullName = NEW.FullName);

    SELECT RAISE(FAIL, 'The value is not a 32-bit integer.')
    WHERE NEW.ValueLong IS NOT NULL
      AND (typeof(NEW.ValueLong) NOT IN ('integer', 'real', 'text')
           OR (typeof(NEW.ValueLong) = 'text'
               AND (trim(NEW.ValueLong) NOT GLOB '[0-9+-]*'
                    OR trim(NEW.ValueLong) NOT GLOB '*[0-9]'
                    OR substr(trim(NEW.ValueLong), 2) GLOB '*[^0-9]*'))
           OR CAST(NEW.ValueLong AS INTEGER) NOT BETWEEN -2147483648 AND 2147483647);

    UPDATE tbl_ConfigurationValue
    SET Value = CASE
            WHEN NEW.ValueLong IS NOT NULL THEN CAST(trim(NEW.ValueLong) AS INTEGER)
            WHEN NEW.ValueFloat IS NOT NULL THEN CAST(trim(NEW.ValueFloat) AS REAL)
            WHEN NEW.ValueDate IS NOT NULL THEN NEW.ValueDate
            WHEN NEW.ValueString IS NOT NULL THEN NEW.ValueString
            WHEN NEW.ValueBool IS NOT NULL
                THEN lower(NEW.ValueBool) = 'true' OR CAST(NEW.ValueBool AS INTEGER) <> 0
            WHEN NEW.ValueGuid IS NOT NULL THEN NEW.ValueGuid
            ELSE Value
        END,
        Type = CASE
            WHEN NEW.ValueLong IS NOT NULL THEN 3
            WHEN NEW.ValueFloat IS NOT NULL THEN 4
            WHEN NEW.ValueDate IS NOT NULL THEN 7
            WHEN NEW.ValueString IS NOT NULL THEN 8
            WHEN NEW.ValueBool IS NOT NULL THEN 11
            WHEN NEW.ValueGuid IS NOT NULL THEN 88
            ELSE Type
        END
    WHERE FullName = NEW.FullName;
END;

CREATE VIEW csp_LoggerDiagnosticGridModify (AuditAlias, AuditComponent, Name, ObjectId, Flags) AS
    SELECT NULL, NULL, NULL, NULL, NULL WHERE 0;

-- Writes a component's whole flag word. The row is found by ObjectId; Name may be missing.
CREATE TRIGGER csp_LoggerDiagnosticGridModify_execute
INSTEAD OF INSERT ON csp_LoggerDiagnosticGridModify
BEGIN
    INSERT INTO tbl_ProcedureAudit (ProcedureName, AuditAlias, AuditComponent, Name, ObjectId, Value)
    VALUES ('csp_LoggerDiagnosticGridModify', NEW.AuditAlias, NEW.AuditComponent, NEW.Name,
            NEW.ObjectId, NEW.Flags);

    SELECT RAISE(FAIL, 'No component has this object identity.')
    WHERE NOT EXISTS (SELECT 1 FROM tbl_LoggerDiagnosticGrid WHERE ObjectId = NEW.ObjectId);

    SELECT RAISE(FAIL, 'The flags are not a word of 32 bits.')
    WHERE NEW.Flags IS NULL
       OR (typeof(NEW.Flags) = 'text'
           AND (NEW.Flags NOT GLOB '[0-9-]*' OR NEW.Flags NOT GLOB '*[0-9]'
                OR substr(NEW.Flags, 2) GLOB '*[^0-9]*'))
       OR CAST(NEW.Flags AS INTEGER) NOT BETWEEN -2147483648 AND 2147483647;

    UPDATE tbl_LoggerDiagnosticGrid
    SET Flags = CAST(NEW.Flags AS INTEGER)
    WHERE ObjectId = NEW.ObjectId;
END;

COMMIT;
