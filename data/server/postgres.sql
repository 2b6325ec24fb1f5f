-- The server's side of the directory database on PostgreSQL (11 or later): the tables, the views
-- that the tool reads and the procedures that it calls. Names stand without quotes, so that
-- queries find them in whatever case. To be run once, on an empty database:
--
--     psql -d OrvanDirDb -f postgres.sql

BEGIN;

-- Names are equal whatever their case.
CREATE COLLATION without_case (
    provider = icu, locale = 'und-u-ks-level2', deterministic = false);

-- Type is 1 (no value), 3 (integer), 4 (floating point), 7 (date), 8 (string), 11 (boolean) or
-- 88 (GUID). The value is text, as a column has one type here: a date is YYYY-MM-DD HH:MM:SS, local
-- time; a boolean is 1 or 0.
CREATE TABLE tbl_ConfigurationValue (
    FullName text COLLATE without_case PRIMARY KEY,
    Value text,
    Type integer NOT NULL CHECK (Type IN (1, 3, 4, 7, 8, 11, 88))
);

-- Flags are words of 32 bits, signed; bit n is trace level n.
CREATE TABLE tbl_LoggerDiagnosticGrid (
    ObjectId text COLLATE without_case PRIMARY KEY,
    Name text COLLATE without_case NOT NULL UNIQUE,
    Flags integer NOT NULL,
    DefaultFlags integer NOT NULL
);

-- Every call of a procedure, oldest first; Value is the value or the flag word that came with it.
CREATE TABLE tbl_ProcedureAudit (
    Id bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY,
    CalledAt timestamp NOT NULL DEFAULT (clock_timestamp() AT TIME ZONE 'UTC'),
    ProcedureName text NOT NULL,
    AuditAlias text,
    AuditComponent text,
    Name text,
    ObjectId text,
    Value text
);

CREATE VIEW vw_ConfigurationValue AS
    SELECT FullName, Value, Type FROM tbl_ConfigurationValue;

CREATE VIEW vw_LoggerDiagnosticGrid AS
    SELECT Name, ObjectId, Flags, DefaultFlags FROM tbl_LoggerDiagnosticGrid;

-- Sets a value, whose type becomes that of the one value parameter given; without one the call is
-- only noted. A refused call stays in the audit table: that is what the COMMIT is for.
CREATE PROCEDURE csp_ConfigurationModify(
    AuditAlias text, AuditComponent text, FullName text, ValueLong integer,
    ValueFloat double precision, ValueDate timestamp, ValueString text, ValueBool boolean,
    ValueGuid text)
LANGUAGE plpgsql AS $$
#variable_conflict use_column
DECLARE
    wanted text := csp_ConfigurationModify.FullName;
    given text := COALESCE(
        ValueLong::text, ValueFloat::text, to_char(ValueDate, 'YYYY-MM-DD HH24:MI:SS'),
        ValueString, CASE ValueBool WHEN true THEN '1' WHEN false THEN '0' END, ValueGuid);
    given_type integer := CASE
        WHEN ValueLong IS NOT NULL THEN 3
        WHEN ValueFloat IS NOT NULL THEN 4
        WHEN ValueDate IS NOT NULL THEN 7
        WHEN ValueString IS NOT NULL THEN 8
        WHEN ValueBool IS NOT NULL THEN 11
        WHEN ValueGuid IS NOT NULL THEN 88
    END;
BEGIN
    INSERT INTO tbl_ProcedureAudit (ProcedureName, AuditAlias, AuditComponent, Name, Value)
    VALUES ('csp_ConfigurationModify', csp_ConfigurationModify.AuditAlias,
            csp_ConfigurationModify.AuditComponent, wanted, given);
    COMMIT;
    IF NOT EXISTS (SELECT FROM tbl_ConfigurationValue v WHERE v.FullName = wanted) THEN
        RAISE 'No configuration value has this full name.';
    END IF;
    UPDATE tbl_ConfigurationValue v SET Value = given, Type = given_type
    WHERE v.FullName = wanted AND given_type IS NOT NULL;
END $$;

-- Writes a component's whole flag word. The row is found by ObjectId; Name may be missing.
CREATE PROCEDURE csp_LoggerDiagnosticGridModify(
    AuditAlias text, AuditComponent text, Name text, ObjectId text, Flags integer)
LANGUAGE plpgsql AS $$
#variable_conflict use_column
DECLARE
    wanted text := csp_LoggerDiagnosticGridModify.ObjectId;
    word integer := csp_LoggerDiagnosticGridModify.Flags;
BEGIN
    INSERT INTO tbl_ProcedureAudit (ProcedureName, AuditAlias, AuditComponent, Name, ObjectId, Value)
    VALUES ('csp_LoggerDiagnosticGridModify', csp_LoggerDiagnosticGridModify.AuditAlias,
            csp_LoggerDiagnosticGridModify.AuditComponent, csp_LoggerDiagnosticGridModify.Name,
            wanted, word::text);
    COMMIT;
    IF NOT EXISTS (SELECT FROM tbl_LoggerDiagnosticGrid g WHERE g.ObjectId = wanted) THEN
        RAISE 'No component has this object identity.';
    END IF;
    IF word IS NULL THEN
        RAISE 'The flags are not a word of 32 bits.';
    END IF;
    UPDATE tbl_LoggerDiagnosticGrid g SET Flags = word WHERE g.ObjectId = wanted;
END $$;

COMMIT;
