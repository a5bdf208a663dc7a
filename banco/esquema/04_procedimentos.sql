-- Stored procedures that statements select from. They are called by position. Dates come in as
-- TIMESTAMP, so that a literal with a time of day is accepted as well as a plain date.

CREATE EXCEPTION EX_TIPO_CONVERSAO 'Tipo de conversão desconhecido';

SET TERM ^ ;

-- Each worker's newest position on or before the date, of one worker when the id is given.
-- Of two positions of one day the later entered wins.
CREATE PROCEDURE SP_BUSCARCARGOEMPREGADO (
    ADATA        TIMESTAMP,
    AIDEMPREGADO BIGINT = NULL)
RETURNS (
    IDEMPREGADO   BIGINT,
    IDCARGOSDESCR BIGINT,
    MOTIVO        VARCHAR(60))
AS
BEGIN
    IF (AIDEMPREGADO IS NULL) THEN
        FOR SELECT C.IDEMPREGADO, C.IDCARGOSDESCR, C.MOTIVO
              FROM CARGOS C
             WHERE C.DATA <= :ADATA
               AND NOT EXISTS (SELECT 1 FROM CARGOS N
                                WHERE N.IDEMPREGADO = C.IDEMPREGADO
                                  AND N.DATA <= :ADATA
                                  AND (N.DATA > C.DATA OR (N.DATA = C.DATA AND N.IDCARGOS > C.IDCARGOS)))
              INTO :IDEMPREGADO, :IDCARGOSDESCR, :MOTIVO
        DO
            SUSPEND;
    ELSE
        FOR SELECT FIRST 1 C.IDEMPREGADO, C.IDCARGOSDESCR, C.MOTIVO
              FROM CARGOS C
             WHERE C.IDEMPREGADO = :AIDEMPREGADO
               AND C.DATA <= :ADATA
             ORDER BY C.DATA DESC, C.IDCARGOS DESC
              INTO :IDEMPREGADO, :IDCARGOSDESCR, :MOTIVO
        DO
            SUSPEND;
END^

-- The salary rows of each worker's newest start on or before the date: one row, or one per level
-- of a worker who is paid by the class hour. The second argument is reserved, callers pass NULL.
CREATE PROCEDURE SP_BUSCARSALARIOEMPREGADO (
    ADATA        TIMESTAMP,
    ARESERVADO   BIGINT = NULL,
    AIDEMPREGADO BIGINT = NULL)
RETURNS (
    IDEMPREGADO     BIGINT,
    VALOR           NUMERIC(15,2),
    SALARIOMENSAL   NUMERIC(15,2),
    TIPOREMUNERACAO VARCHAR(40),
    DESCRSALARIOVAR VARCHAR(255),
    IDNIVEL         BIGINT,
    INICIOVIGENCIA  TIMESTAMP)
AS
BEGIN
    IF (AIDEMPREGADO IS NULL) THEN
        FOR SELECT S.IDEMPREGADO, S.VALOR, S.SALARIOMENSAL, S.TIPOREMUNERACAO, S.DESCRSALARIOVAR, S.IDNIVEL, S.INICIOVIGENCIA
              FROM SALARIO S
             WHERE S.INICIOVIGENCIA = (SELECT MAX(N.INICIOVIGENCIA) FROM SALARIO N
                                        WHERE N.IDEMPREGADO = S.IDEMPREGADO AND N.INICIOVIGENCIA <= :ADATA)
             ORDER BY S.IDEMPREGADO, S.IDSALARIO
              INTO :IDEMPREGADO, :VALOR, :SALARIOMENSAL, :TIPOREMUNERACAO, :DESCRSALARIOVAR, :IDNIVEL, :INICIOVIGENCIA
        DO
            SUSPEND;
    ELSE
        FOR SELECT S.IDEMPREGADO, S.VALOR, S.SALARIOMENSAL, S.TIPOREMUNERACAO, S.DESCRSALARIOVAR, S.IDNIVEL, S.INICIOVIGENCIA
              FROM SALARIO S
             WHERE S.IDEMPREGADO = :AIDEMPREGADO
               AND S.INICIOVIGENCIA = (SELECT MAX(N.INICIOVIGENCIA) FROM SALARIO N
                                        WHERE N.IDEMPREGADO = :AIDEMPREGADO AND N.INICIOVIGENCIA <= :ADATA)
             ORDER BY S.IDSALARIO
              INTO :IDEMPREGADO, :VALOR, :SALARIOMENSAL, :TIPOREMUNERACAO, :DESCRSALARIOVAR, :IDNIVEL, :INICIOVIGENCIA
        DO
            SUSPEND;
END^

-- Each worker's newest place of work on or before the date. A movement that holds codes only is
-- resolved to its establishment, and COD_DEPTO to the department of that establishment.
-- The second argument is reserved, callers pass NULL.
CREATE PROCEDURE SP_BUSCARALOCACAOEMPREGADO (
    ADATA        TIMESTAMP,
    ARESERVADO   BIGINT = NULL,
    AIDEMPREGADO BIGINT = NULL)
RETURNS (
    IDEMPREGADO BIGINT,
    IDFILIAL    BIGINT,
    IDDEPTO     BIGINT)
AS
    DECLARE COD_EMPRESA INTEGER;
    DECLARE COD_FILIAL  INTEGER;
    DECLARE COD_DEPTO   INTEGER;
BEGIN
    -- Two bounds, which the index serves; a comparison with COALESCE would read every worker's movements for one.
    FOR SELECT M.IDEMPREGADO, M.IDFILIAL, M.COD_EMPRESA, M.COD_FILIAL, M.COD_DEPTO
          FROM MOV_TRANSF M
         WHERE M.IDEMPREGADO BETWEEN COALESCE(:AIDEMPREGADO, -9223372036854775808)
                                 AND COALESCE(:AIDEMPREGADO, 9223372036854775807)
           AND M.DATAINICIOMOV <= :ADATA
           AND NOT EXISTS (SELECT 1 FROM MOV_TRANSF N
                            WHERE N.IDEMPREGADO = M.IDEMPREGADO
                              AND N.DATAINICIOMOV <= :ADATA
                              AND (N.DATAINICIOMOV > M.DATAINICIOMOV
                                   OR (N.DATAINICIOMOV = M.DATAINICIOMOV AND N.IDMOV_TRANSF > M.IDMOV_TRANSF)))
          INTO :IDEMPREGADO, :IDFILIAL, :COD_EMPRESA, :COD_FILIAL, :COD_DEPTO
    DO
    BEGIN
        IF (IDFILIAL IS NULL) THEN
            SELECT FIRST 1 F.IDFILIAL
              FROM SC00_EMPRESA E
              JOIN SC00_FILIAL F ON (F.IDEMPRESA = E.IDEMPRESA)
             WHERE E.EMPRESA = :COD_EMPRESA AND F.FILIAL = :COD_FILIAL
             ORDER BY F.IDFILIAL
              INTO :IDFILIAL;
        -- A SELECT without a row leaves the variable alone: clear what the former worker left.
        IDDEPTO = NULL;
        SELECT FIRST 1 D.IDDEPTO
          FROM SC00_DEPTO D
         WHERE D.IDFILIAL = :IDFILIAL AND D.DEPTO = :COD_DEPTO
         ORDER BY D.IDDEPTO
          INTO :IDDEPTO;
        SUSPEND;
    END
END^

-- The digits of a text, NULL of NULL.
CREATE PROCEDURE SP_BUSCARSOMENTENUMEROS (
    TEXTO VARCHAR(1000))
RETURNS (
    RESULT VARCHAR(1000))
AS
    DECLARE I INTEGER = 1;
    DECLARE C VARCHAR(1);
BEGIN
    IF (TEXTO IS NOT NULL) THEN
    BEGIN
        RESULT = '';
        WHILE (I <= CHAR_LENGTH(TEXTO)) DO
        BEGIN
            C = SUBSTRING(TEXTO FROM I FOR 1);
            IF (C >= '0' AND C <= '9') THEN
                RESULT = RESULT || C;
            I = I + 1;
        END
    END
    SUSPEND;
END^

-- Safe cast of a text: the default where the text doesn't convert.
CREATE PROCEDURE SP_CONVERTERPARA (
    VALOR  VARCHAR(1000),
    TIPO   VARCHAR(30),
    PADRAO VARCHAR(1000))
RETURNS (
    SINTEGER BIGINT)
AS
BEGIN
    IF (UPPER(TRIM(TIPO)) <> 'INTEGER') THEN
        EXCEPTION EX_TIPO_CONVERSAO 'Tipo de conversão desconhecido: ' || TIPO;
    BEGIN
        SINTEGER = CAST(COALESCE(VALOR, PADRAO) AS BIGINT);
        WHEN ANY DO
            SINTEGER = CAST(PADRAO AS BIGINT);
    END
    SUSPEND;
END^

-- Last day of the date's month.
CREATE PROCEDURE SP_ULTIMODIAMES (
    DATA TIMESTAMP)
RETURNS (
    LDATA DATE)
AS
    DECLARE DIA DATE;
BEGIN
    DIA = CAST(DATA AS DATE);
    DIA = DIA - EXTRACT(DAY FROM DIA) + 1;
    LDATA = DATEADD(-1 DAY TO DATEADD(1 MONTH TO DIA));
    SUSPEND;
END^

SET TERM ; ^
