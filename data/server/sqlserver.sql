-- The server's side of the directory database on SQL Server (2012 or later): the tables, the views
-- that the tool reads and the procedures that it calls. To be run once, in an empty database whose
-- collation takes no account of case.

-- Type is 1 (no value), 3 (integer), 4 (floating point), 7 (date), 8 (string), 11 (boolean) or
-- 88 (GUID), and the value is of the type that it says.
CREATE TABLE tbl_ConfigurationValue (
    FullName nvarchar(255) NOT NULL PRIMARY KEY,
    Value sql_variant NULL,
    Type int NOT NULL CHECK (Type IN (1, 3, 4, 7, 8, 11, 88))
);

-- Flags are words of 32 bits, signed; bit n is trace level n.
CREATE TABLE tbl_LoggerDiagnosticGrid (
    ObjectId nvarchar(64) NOT NULL PRIMARY KEY,
    Name nvarchar(255) NOT NULL UNIQUE,
    Flags int NOT NULL,
    DefaultFlags int NOT NULL
);

-- Every call of a procedure, oldest first; Value is the value or the flag word that came with it.
CREATE TABLE tbl_ProcedureAudit (
    Id bigint IDENTITY PRIMARY KEY,
    CalledAt datetime2 NOT NULL DEFAULT SYSUTCDATETIME(),
    ProcedureName nvarchar(128) NOT NULL,
    AuditAlias nvarchar(255) NULL,
    AuditComponent nvarchar(255) NULL,
    Name nvarchar(255) NULL,
    ObjectId nvarchar(64) NULL,
    Value sql_variant NULL
);
GO

CREATE VIEW vw_ConfigurationValue AS
    SELECT FullName, Value, Type FROM tbl_ConfigurationValue;
GO

CREATE VIEW vw_LoggerDiagnosticGrid AS
    SELECT Name, ObjectId, Flags, DefaultFlags FROM tbl_LoggerDiagnosticGrid;
GO

-- Sets a value, whose type becomes that of the one value parameter given; without one the call is
-- only noted. A refused call stays in the audit table.
CREATE PROCEDURE csp_ConfigurationModify
    @AuditAlias nvarchar(255) = NULL,
    @AuditComponent nvarchar(255) = NULL,
    @FullName nvarchar(255) = NULL,
    @ValueLong int = NULL,
    @ValueFloat float = NULL,
    @ValueDate datetime = NULL,
    @ValueString nvarchar(4000) = NULL,
    @ValueBool bit = NULL,
    @ValueGuid nvarchar(64) = NULL
AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @value sql_variant =
        CASE WHEN @ValueLong IS NOT NULL THEN CAST(@ValueLong AS sql_variant)
             WHEN @ValueFloat IS NOT NULL THEN CAST(@ValueFloat AS sql_variant)
             WHEN @ValueDate IS NOT NULL THEN CAST(@ValueDate AS sql_variant)
             WHEN @ValueString IS NOT NULL THEN CAST(@ValueString AS sql_variant)
             WHEN @ValueBool IS NOT NULL THEN CAST(@ValueBool AS sql_variant)
             WHEN @ValueGuid IS NOT NULL THEN CAST(@ValueGuid AS sql_variant) END;
    DECLARE @type int =
        CASE WHEN @ValueLong IS NOT NULL THEN 3
             WHEN @ValueFloat IS NOT NULL THEN 4
             WHEN @ValueDate IS NOT NULL THEN 7
             WHEN @ValueString IS NOT NULL THEN 8
             WHEN @ValueBool IS NOT NULL THEN 11
             WHEN @ValueGuid IS NOT NULL THEN 88 END;
    INSERT INTO tbl_ProcedureAudit (ProcedureName, AuditAlias, AuditComponent, Name, Value)
    VALUES (N'csp_ConfigurationModify', @AuditAlias, @AuditComponent, @FullName, @value);
    IF NOT EXISTS (SELECT 1 FROM tbl_ConfigurationValue WHERE FullName = @FullName)
        THROW 50001, N'No configuration value has this full name.', 1;
    IF @type IS NOT NULL
        UPDATE tbl_ConfigurationValue SET Value = @value, Type = @type WHERE FullName = @FullName;
END;
GO

-- Writes a component's whole flag word. The row is found by ObjectId; Name may be missing.
CREATE PROCEDURE csp_LoggerDiagnosticGridModify
    @AuditAlias nvarchar(255) = NULL,
    @AuditComponent nvarchar(255) = NULL,
    @Name nvarchar(255) = NULL,
    @ObjectId nvarchar(64) = NULL,
    @Flags int = NULL
AS
BEGIN
    SET NOCOUNT ON;
    INSERT INTO tbl_ProcedureAudit (ProcedureName, AuditAlias, AuditComponent, Name, ObjectId, Value)
    VALUES (N'csp_LoggerDiagnosticGridModify', @AuditAlias, @AuditComponent, @Name, @ObjectId,
            @Flags);
    IF NOT EXISTS (SELECT 1 FROM tbl_LoggerDiagnosticGrid WHERE ObjectId = @ObjectId)
        THROW 50002, N'No component has this object identity.', 1;
    IF @Flags IS NULL
        THROW 50003, N'The flags are not a word of 32 bits.', 1;
    UPDATE tbl_LoggerDiagnosticGrid SET Flags = @Flags WHERE ObjectId = @ObjectId;
END;
GO
